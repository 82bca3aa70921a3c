#pragma once

#include "analysis/TimeSpan.h"
#include "app/Progress.h"
#include "app/Settings.h"
#include "project/TimeReference.h"
#include "trace/TraceSet.h"

#include <QString>

#include <optional>

namespace ZARN {

class CsvColumn;
class ProgressSpan;
class SafeFile;

/// What the user chose for one CSV export.
struct CsvExportOptions {
    QString directory;
    QString fileName;
    char separator = static_cast<char>(Settings::kCsvLimiter.fallback); ///< ';', ',' or a tab
    bool allParameters = Settings::kCsvAllParameter.fallback;           ///< false: only those selected in the project
    uint32_t resolution = Settings::kCsvResolution.fallback;            ///< milliseconds a row: 100 or 10
    std::optional<TimeSpan> span = {}; ///< only rows in it, with the values that held before; none: the whole
    TimeReference times = {};          ///< what the first column tells
};

/// Writes the decoded data of the loaded cycle as a table of separated values: one row per time step that has a sample, one
/// column per parameter, each cell the parameter's display text, held until the next sample. Rows are written as they are
/// reached: memory does not grow with their number.
class ExportCsv {
public:
    /// @param selection matters when an export is not of all parameters
    explicit ExportCsv(DecodingContext context, Selection selection = {}) : mContext(std::move(context)), mSelection(std::move(selection))
    {
    }

    /// Writes directory/fileName. @return false when it could not be written whole or was cancelled; the old file, if any, is then
    /// untouched.
    bool exportData(const RecordData& recordData, const CsvExportOptions& options, Progress& progress = nullProgress());
    /// Opens the file, writes to it and commits it.
    bool writeFile(SafeFile& file, const RecordData& recordData, const CsvExportOptions& options, Progress& progress = nullProgress());
    /// Why the last export failed: "NAME: reason"; empty after one that was cancelled.
    [[nodiscard]] const std::string& error() const { return mError; }

private:
    /// @return false when the user cancels.
    static bool makeColumns(const TraceSet& traces, const CsvExportOptions& options, const ProgressSpan& progress,
                            std::vector<CsvColumn>& columns, std::string& header);

    const DecodingContext mContext;
    const Selection mSelection;
    std::string mError;
};

} // namespace ZARN
