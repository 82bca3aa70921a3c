#pragma once

#include <QCoreApplication>

#include <cstdint>

class QWidget;

namespace ZARN {

class DecodingContext;
class RecordData;
class Selection;
struct CsvExportOptions;
struct KmlExportOptions;

/// What the user should know of an export before it is written: that there is little to write, or that it will be much.
class ExportOutlook {
    Q_DECLARE_TR_FUNCTIONS(ZARN::ExportOutlook)

public:
    static constexpr uint64_t kWorthSaying = 100'000'000; // bytes

    /// The size is that of a table in which every step of the time has a row, unless there are fewer samples, with texts as long as those of
    /// some samples.
    ExportOutlook(const RecordData& data, const DecodingContext& context, const Selection& selection, const CsvExportOptions& options);
    /// The size is without the placemarks of exceedances, which are few.
    /// @param trackSeconds how long the tracks with times are
    ExportOutlook(const RecordData& data, const DecodingContext& context, const Selection& selection, const KmlExportOptions& options,
                  double trackSeconds = 0.0);

    /// About how large the file will be.
    [[nodiscard]] uint64_t bytes() const { return mBytes; }
    /// The same for people.
    [[nodiscard]] QString size() const;
    /// What is to be considered, for people; empty when there is nothing to say. @param free bytes in the folder, < 0 when unknown
    [[nodiscard]] QString note(int64_t free) const;
    /// Asks the user when the file will hardly fit. @return whether it is to be written.
    [[nodiscard]] bool mayWrite(int64_t free, QWidget* pWindow) const;

    /// Bytes that the user may fill there; < 0 when unknown.
    [[nodiscard]] static int64_t freeBytes(const QString& folder);

private:
    uint64_t mBytes = 0;
    QString mLack; // what is missing
};

} // namespace ZARN
