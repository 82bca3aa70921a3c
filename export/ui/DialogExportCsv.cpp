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
    connect(this, &QWizard::currentIdChanged, this, &DialogExportCsv::slotChanged);
}

bool DialogExportCsv::getOptions(CsvExportOptions& options, const std::vector<ExportPart>& parts)
{
    mpPath->setTarget(options.directory, options.fileName);
    mpOptions->setOptions(options.separator, static_cast<int>(options.resolution), options.allParameters);
    mpPath->setParts(parts);
    restart();
    loadSettings();
    if (exec() != QDialog::Accepted)
        return false;
    options = chosen();
    saveSettings();
    return true;
}

CsvExportOptions DialogExportCsv::chosen() const
{
    return {mpPath->directory(),        mpPath->fileName(),      mpOptions->separator(),
            mpOptions->allParameters(), mpOptions->resolution(), mpPath->span()};
}

ExportOutlook DialogExportCsv::outlook() const
{
    return {mSession.container.recordData(), mSession.profile, mSession.profile.selection(), chosen()};
}

void DialogExportCsv::slotChanged()
{
    mpOptions->setNote(outlook().note(ExportOutlook::freeBytes(mpPath->directory())));
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
                          Settings::kCsvAllParameter.get(settings));
}

void DialogExportCsv::saveSettings() const
{
    Property& settings = mSession.property;
    Settings::kCsvExportDir.set(settings, mpPath->directory());
    Settings::kCsvLimiter.set(settings, mpOptions->separator());
    Settings::kCsvResolution.set(settings, static_cast<int>(mpOptions->resolution()));
    Settings::kCsvAllParameter.set(settings, mpOptions->allParameters());
    settings.writeXmlFile();
}

} // namespace ZARN
