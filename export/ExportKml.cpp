#include "export/ExportKml.h"

#include "analysis/LimitEvents.h"
#include "analysis/WarningEvents.h"
#include "app/Console.h"
#include "app/SafeFile.h"

#include <QFile>

namespace ZARN {

ExportKml::ExportKml(const Console& console, Profile& profile, const QDateTime& cycleDate) : mConsole(console), mProfile(profile)
{
    if (cycleDate.isValid())
        mContent.date = cycleDate.toString("d.M.yyyy h:mm:ss");
}

bool ExportKml::exportData(const RecordData& recordData, const KmlExportOptions& options)
{
    collect(recordData, options);
    return exportFile(options);
}

bool ExportKml::exportData(const RecordData& recordData, const KmlExportOptions& options, SafeFile& file)
{
    collect(recordData, options);
    return exportFile(options, file);
}

void ExportKml::collect(const RecordData& recordData, const KmlExportOptions& options)
{
    mContent.path.build(recordData, mProfile, KmlGrid(options.timeStamp), mConsole);
    exportPlaceMarks(recordData, options);
    exportErrors(recordData, options);
}

bool ExportKml::exportPlaceMarks(const RecordData& recordData, const KmlExportOptions& options)
{
    mContent.placemarks.clear();
    if (options.placeMarkOn)
        mContent.placemarks.collect(recordData, mProfile, KmlGrid(options.timeStamp), options.placeMarkInterval);
    return true;
}

bool ExportKml::exportErrors(const RecordData& recordData, const KmlExportOptions& options)
{
    mContent.limits = mContent.warnings = {};
    if (options.errorMarkOn && options.showLimit)
        mContent.limits = limitEvents(recordData, mProfile);
    if (options.errorMarkOn && options.showWarning)
        mContent.warnings = warningEvents(recordData, mProfile);
    return true;
}

bool ExportKml::exportFile(const KmlExportOptions& options)
{
    const std::string path = QFile::encodeName(QString::fromStdString(options.directory + "/" + options.fileName)).toStdString();
    SafeFile file(path);
    if (exportFile(options, file))
        return true;
    mConsole.print("could not open file for writing !<%s>\n", path.c_str());
    return false;
}

bool ExportKml::exportFile(const KmlExportOptions& options, SafeFile& file)
{
    mError.clear();
    if (file.open()) {
        KmlWriter writer(file);
        KmlDocument(mContent, options, writer).write();
        if (writer.flush() && file.commit())
            return true;
    }
    mError = file.error();
    return false;
}

} // namespace ZARN
