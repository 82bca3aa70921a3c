#include "export/ui/DialogExportCsv.h"

#include "app/Property.h"
#include "card/CardContainer.h"
#include "export/ui/DialogExportCsvOptions.h"
#include "export/ui/DialogExportCsvPath.h"

#include <algorithm>

namespace ZARN {

namespace {

constexpr QSize kSize(560, 380);

std::size_t selectedCount(const Profile& profile)
{
    std::size_t count = 0;
    for (const ProfileDevice& device : profile.data()) {
        count += static_cast<std::size_t>(std::count_if(device.parameters.begin(), device.parameters.end(), [&](const ProfileParameter& parameter) {
            return profile.isSelected(parameter.name);
        }));
    }
    return count;
}

} // namespace

DialogExportCsv::DialogExportCsv(const Session& session, QWidget* pParent)
    : QWizard(pParent), mSession(session), mpPath(new DialogExportCsvPath), mpOptions(new DialogExportCsvOptions)
{
    setWindowTitle(tr("CSV Export"));
    setWizardStyle(QWizard::ModernStyle);
    addPage(mpPath);
    addPage(mpOptions);
    resize(kSize);
}

bool DialogExportCsv::getOptions(CsvExportOptions& options)
{
    mpPath->setTarget(options.directory, options.fileName);
    mpOptions->setOptions(options.separator, static_cast<int>(options.resolution), options.allParameters);
    mpOptions->setData(mSession.container.recordData().channels().empty(), selectedCount(mSession.profile));
    restart();
    loadSettings();
    if (exec() != QDialog::Accepted)
        return false;
    options = {mpPath->directory(), mpPath->fileName(), mpOptions->separator(), mpOptions->allParameters(), mpOptions->resolution()};
    saveSettings();
    return true;
}

void DialogExportCsv::loadSettings()
{
    const Property& settings = mSession.property;
    mpPath->setTarget(QString::fromStdString(settings.getString("CsvExportDir", ".")), mpPath->fileName());
    mpOptions->setOptions(settings.getInt("CsvLimiter", ';'), settings.getInt("CsvResolution", 100), settings.getSwitch("CsvAllParameter", true));
}

void DialogExportCsv::saveSettings() const
{
    Property& settings = mSession.property;
    settings.setString("CsvExportDir", mpPath->directory().toStdString());
    settings.setInt("CsvLimiter", mpOptions->separator());
    settings.setInt("CsvResolution", static_cast<int>(mpOptions->resolution()));
    settings.setSwitch("CsvAllParameter", mpOptions->allParameters());
    settings.writeXmlFile();
}

} // namespace ZARN
