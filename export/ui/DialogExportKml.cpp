#include "export/ui/DialogExportKml.h"

#include "app/Property.h"
#include "export/ui/DialogExportKmlOptions.h"
#include "export/ui/DialogExportKmlPath.h"
#include "export/ui/DialogExportKmlPlacemark.h"

namespace ZARN {

namespace {

constexpr QSize kSize(560, 440);

} // namespace

DialogExportKml::DialogExportKml(const Session& session, QWidget* pParent)
    : QWizard(pParent), mSession(session), mpPath(new DialogExportKmlPath), mpOptions(new DialogExportKmlOptions),
      mpPlacemark(new DialogExportKmlPlacemark)
{
    setWindowTitle(tr("KML Export"));
    setWizardStyle(QWizard::ModernStyle);
    addPage(mpPath);
    addPage(mpOptions);
    addPage(mpPlacemark);
    resize(kSize);
}

bool DialogExportKml::getOptions(KmlExportOptions& options)
{
    KmlExportOptions shown = options;
    shown.read(mSession.property);
    mpPath->setTarget(QString::fromStdString(shown.directory), QString::fromStdString(shown.fileName));
    mpOptions->show(shown);
    mpPlacemark->show(shown);
    restart();
    if (exec() != QDialog::Accepted)
        return false;
    shown.directory = mpPath->directory().toStdString();
    shown.fileName = mpPath->fileName().toStdString();
    mpOptions->store(shown);
    mpPlacemark->store(shown);
    options = shown;
    options.write(mSession.property);
    mSession.property.writeXmlFile();
    return true;
}

} // namespace ZARN
