#include "export/ExportKml.h"

#include "analysis/LimitEvents.h"
#include "analysis/WarningEvents.h"
#include "app/Console.h"
#include "app/DateText.h"
#include "app/SafeFile.h"

#include <QFile>

namespace ZARN {

namespace {

// How many percent of the work are done after each step; the rest is the writing.
constexpr int kPathDone = 15;
constexpr int kPlacemarksDone = 35;
constexpr int kEventsDone = 50;

} // namespace

ExportKml::ExportKml(const Console& console, DecodingContext context, Selection selection, const QDateTime& cycleDate)
    : mConsole(console), mContext(std::move(context)), mSelection(std::move(selection))
{
    mContent.date = shortDateText(cycleDate);
}

bool ExportKml::exportData(const RecordData& recordData, const KmlExportOptions& options, Progress& progress)
{
    return collect(recordData, options, progress) && exportFile(options, progress);
}

bool ExportKml::exportData(const RecordData& recordData, const KmlExportOptions& options, SafeFile& file, Progress& progress)
{
    return collect(recordData, options, progress) && exportFile(options, file, progress);
}

bool ExportKml::collect(const RecordData& recordData, const KmlExportOptions& options, Progress& progress)
{
    mError.clear();
    const ProgressSpan path(progress, 0, kPathDone);
    mContent.tracks = {};
    if (options.track && mTracked && mTracked->powerUp.isValid())
        mContent.tracks = PathTracks::perFlight(*mTracked, options.span);
    return mContent.path.build(recordData, mContext, KmlGrid(options.timeStamp), mConsole, path) &&
           exportPlaceMarks(recordData, options, progress) && exportErrors(recordData, options, progress);
}

bool ExportKml::exportPlaceMarks(const RecordData& recordData, const KmlExportOptions& options, Progress& progress)
{
    mContent.placemarks.clear();
    const ProgressSpan span(progress, kPathDone, kPlacemarksDone);
    return !options.placeMarkOn ||
           mContent.placemarks.collect(recordData, mContext, mSelection, KmlGrid(options.timeStamp), options.placeMarkInterval, span);
}

bool ExportKml::exportErrors(const RecordData& recordData, const KmlExportOptions& options, Progress& progress)
{
    mContent.limits = mContent.warnings = {};
    if (!options.errorMarkOn)
        return true;
    const ProgressSpan span(progress, kPlacemarksDone, kEventsDone);
    if (options.showLimit)
        mContent.limits = limitEvents(recordData, mContext);
    if (!span.step(1, 2))
        return false;
    if (options.showWarning)
        mContent.warnings = warningEvents(recordData, mContext);
    return span.step(2, 2);
}

bool ExportKml::exportFile(const KmlExportOptions& options, Progress& progress)
{
    const std::string path = QFile::encodeName(QString::fromStdString(options.directory + "/" + options.fileName)).toStdString();
    SafeFile file(path);
    if (exportFile(options, file, progress))
        return true;
    if (!mError.empty())
        mConsole.print("could not open file for writing !<%s>\n", path.c_str());
    return false;
}

bool ExportKml::exportFile(const KmlExportOptions& options, SafeFile& file, Progress& progress)
{
    mError.clear();
    if (file.open()) {
        XmlWriter writer(file);
        const ProgressSpan span(progress, kEventsDone, 100);
        const bool whole = KmlDocument(mContent, options, writer, span).write();
        if (writer.flush() && whole && file.commit())
            return true;
    }
    mError = file.error();
    return false;
}

} // namespace ZARN
