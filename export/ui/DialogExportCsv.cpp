#include "export/ui/DialogExportCsv.h"

#include "app/Property.h"
#include "app/Settings.h"
#include "card/CardContainer.h"
#include "export/ui/DialogExportCsvOptions.h"
#include "export/ui/DialogExportCsvPath.h"
#include "export/ui/ExportOutlook.h"
#include "profile/Profile.h"

namespace ZARN {

namespace {

constexpr QSize kSize(560, 380);

} // namespace

DialogExportCsv::DialogExportCsv(const Session& session, QWidget* pParent)
    : QWizard(pParent), mSession(session), mpPath(new DialogExportCsvPath(session.container)), mpOptions(new DialogExportCsvOptions)
{
    setWindowTitle(tr("CSV Export"));
    setWizardStyle(QWizard::ModernStyle);
    addPage(mpPath);
    addPage(mpOptions);
    resize(kSize);
    connect(mpOptions, &DialogExportCsvOptions::signalChanged, this, &DialogExportCsv::slotChanged);
    connect(mpPath, &ExportPathPage::signalPart, this, &DialogExportCsv::slotChanged);
    connect(this, &QWizard::currentIdChanged, this, &DialogExportCsv::slotChanged);
}

bool DialogExportCsv::getOptions(CsvExportOptions& options, const std::vector<ExportPart>& parts)
{
    mpPath->setTarget(options.directory, options.fileName);
    mpOptions->setOptions(options.separator, static_cast<int>(options.resolution), options.allParameters, options.locale);
    mpPath->setParts(parts);
    restart();
    loadSettings();
    slotChanged();
    if (exec() != QDialog::Accepted)
        return false;
    options = chosen();
    saveSettings();
    return true;
}

CsvExportOptions DialogExportCsv::chosen() const
{
    return {mpPath->directory(),        mpPath->fileName(),      mpOptions->separator(),
            mpOptions->allParameters(), mpOptions->resolution(), mpPath->span(), mpOptions->locale()};
}

ExportOutlook DialogExportCsv::outlook() const
{
    return {mSession.container.recordData(), mSession.profile, mSession.profile.selection(), chosen()};
}

void DialogExportCsv::slotChanged()
{
    const ExportOutlook outlook = this->outlook();
    mpOptions->setOutlook(outlook.note(ExportOutlook::freeBytes(mpPath->directory())), outlook.size());
    mpPath->setSize(outlook.size());
}

void DialogExportCsv::accept()
{
    if (outlook().mayWrite(ExportOutlook::freeBytes(mpPath->directory()), this))
        QWizard::accept();
}

void DialogExportCsv::loadSettings()
{
    const Property& settings = mSession.property;
    mpPath->setTarget(Settings::kCsvExportDir.text(settings), mpPath->fileName());
    mpOptions->setOptions(Settings::kCsvLimiter.get(settings), Settings::kCsvResolution.get(settings),
                          Settings::kCsvAllParameter.get(settings), Settings::kCsvLocale.text(settings));
}

void DialogExportCsv::saveSettings() const
{
    Property& settings = mSession.property;
    Settings::kCsvExportDir.set(settings, mpPath->directory());
    Settings::kCsvLimiter.set(settings, mpOptions->separator());
    Settings::kCsvResolution.set(settings, static_cast<int>(mpOptions->resolution()));
    Settings::kCsvLocale.set(settings, mpOptions->locale());
    Settings::kCsvAllParameter.set(settings, mpOptions->allParameters());
    settings.writeXmlFile();
}

} // namespace ZARN
