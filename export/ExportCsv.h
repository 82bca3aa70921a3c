#pragma once

#include "analysis/TimeSpan.h"
#include "app/Progress.h"
#include "app/Settings.h"
#include "project/TimeReference.h"
#include "trace/TraceSet.h"

#include <QDateTime>

#include <optional>

namespace ZARN {

class CsvColumn;
struct CsvForm;
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
    QString locale = {};               ///< as CsvForm takes it: not empty for spreadsheets of that place, which have a separator of their own
    TimeReference times = {};          ///< what the first column tells
};

/// Writes the decoded data of the loaded cycle as a table of separated values: one row per time step that has a sample, one
/// column per parameter, each cell the parameter's display text, held until the next sample. Rows are written as they are
/// reached: memory does not grow with their number.
class ExportCsv {
public:
    /// @param selection matters when an export is not of all parameters
    /// @param powerUp wall clock of time 0, which tables for spreadsheets show
    explicit ExportCsv(DecodingContext context, Selection selection = {}, const QDateTime& powerUp = {})
        : mContext(std::move(context)), mSelection(std::move(selection)), mPowerUp(powerUp)
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
    static bool makeColumns(const TraceSet& traces, const CsvExportOptions& options, const CsvForm& form, const ProgressSpan& progress,
                            std::vector<CsvColumn>& columns, std::string& header);

    const DecodingContext mContext;
    const Selection mSelection;
    const QDateTime mPowerUp;
    std::string mError;
};

} // namespace ZARN
