#include "export/ui/DialogExportKml.h"

#include "app/Property.h"
#include "card/CardContainer.h"
#include "card/PowerUp.h"
#include "export/PathTracks.h"
#include "export/ui/DialogExportKmlOptions.h"
#include "export/ui/DialogExportKmlPath.h"
#include "export/ui/DialogExportKmlPlacemark.h"
#include "export/ui/ExportOutlook.h"
#include "profile/Profile.h"

namespace ZARN {

namespace {

constexpr QSize kSize(560, 440);

} // namespace

DialogExportKml::DialogExportKml(const Session& session, QWidget* pParent)
    : QWizard(pParent), mSession(session), mpPath(new DialogExportKmlPath(session.container)),
      mpOptions(new DialogExportKmlOptions(PowerUp::ofLoaded(session.container).isValid())), mpPlacemark(new DialogExportKmlPlacemark)
{
    setWindowTitle(tr("KML Export"));
    setWizardStyle(QWizard::ModernStyle);
    addPage(mpPath);
    addPage(mpOptions);
    addPage(mpPlacemark);
    resize(kSize);
    connect(mpPlacemark, &DialogExportKmlPlacemark::signalChanged, this, &DialogExportKml::slotChanged);
    connect(mpPath, &ExportPathPage::signalPart, this, &DialogExportKml::slotChanged);
    connect(this, &QWizard::currentIdChanged, this, &DialogExportKml::slotChanged);
}

bool DialogExportKml::getOptions(KmlExportOptions& options, const std::vector<ExportPart>& parts)
{
    KmlExportOptions shown = options;
    shown.read(mSession.property);
    mpPath->setTarget(QString::fromStdString(shown.directory), QString::fromStdString(shown.fileName));
    mpPath->setParts(parts);
    mpOptions->show(shown);
    mpPlacemark->show(shown);
    restart();
    slotChanged();
    if (exec() != QDialog::Accepted)
        return false;
    options = chosen();
    options.write(mSession.property);
    mSession.property.writeXmlFile();
    return true;
}

KmlExportOptions DialogExportKml::chosen() const
{
    KmlExportOptions options;
    options.directory = mpPath->directory().toStdString();
    options.fileName = mpPath->fileName().toStdString();
    options.span = mpPath->span();
    mpOptions->store(options);
    mpPlacemark->store(options);
    return options;
}

ExportOutlook DialogExportKml::outlook() const
{
    const KmlExportOptions options = chosen();
    return {mSession.container.recordData(), mSession.profile, mSession.profile.selection(), options,
            options.track ? PathTracks::seconds(mSession.container.loaded(), options.span) : 0.0};
}

void DialogExportKml::slotChanged()
{
    const ExportOutlook outlook = this->outlook();
    mpPlacemark->setOutlook(outlook.note(ExportOutlook::freeBytes(mpPath->directory())), outlook.size());
    mpPath->setSize(outlook.size());
}

void DialogExportKml::accept()
{
    if (outlook().mayWrite(ExportOutlook::freeBytes(mpPath->directory()), this))
        QWizard::accept();
}

} // namespace ZARN
