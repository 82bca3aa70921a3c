#include "export/ui/ExportOutlook.h"

#include "app/Numeric.h"
#include "export/ExportCsv.h"
#include "export/KmlExportOptions.h"
#include "export/KmlPath.h"

#include <QLocale>
#include <QMessageBox>
#include <QStorageInfo>

#include <algorithm>
#include <limits>

namespace ZARN {

namespace {

constexpr double kCsvTimeBytes = 12;        // "0:33:23.200;"
constexpr double kCsvClockBytes = 36;       // "2003.200;" and "15.06.2024 09:42:42.202;"
constexpr double kKmlPointBytes = 34;       // a line of coordinates
constexpr double kKmlTrackPointBytes = 130; // its time and its coordinates
constexpr double kKmlPlacemarkBytes = 330;  // without its values
constexpr double kKmlValueBytes = 140;      // without name and text
constexpr std::size_t kTextsTried = 16;       // of a parameter

/// How many bytes the texts of a trace have in the mean.
double meanText(const Trace& trace)
{
    const std::size_t count = std::min(kTextsTried, trace.size());
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        trace.decoder().appendText(trace.number(i * trace.size() / count), text);
    return count > 0 ? static_cast<double>(text.size()) / static_cast<double>(count) : 0.0;
}

/// What traces have in a span of time: an upper bound of the steps in which there is a sample.
class Extent {
public:
    explicit Extent(const std::optional<TimeSpan>& span) : mSpan(span) {}

    /// @param samples a trace, or the entries of a channel
    template <typename Samples> void add(const Samples& samples)
    {
        if (samples.empty())
            return;
        const double first = samples.time(0), last = samples.time(samples.size() - 1);
        const double from = mSpan ? std::max(first, mSpan->start) : first, to = mSpan ? std::min(last, mSpan->end) : last;
        if (to < from)
            return;
        mFrom = std::min(mFrom, from);
        mTo = std::max(mTo, to);
        mSamples += static_cast<double>(samples.size()) * (last > first ? (to - from) / (last - first) : 1.0);
    }
    [[nodiscard]] double steps(double seconds) const { return mTo < mFrom ? 0.0 : std::min(mSamples, (mTo - mFrom) / seconds) + 1; }

private:
    std::optional<TimeSpan> mSpan;
    double mFrom = std::numeric_limits<double>::max();
    double mTo = std::numeric_limits<double>::lowest();
    double mSamples = 0.0;
};

QString shown(uint64_t bytes)
{
    return QLocale().formattedDataSize(static_cast<qint64>(bytes), 1, QLocale::DataSizeSIFormat);
}

} // namespace

ExportOutlook::ExportOutlook(const RecordData& data, const DecodingContext& context, const Selection& selection,
                             const CsvExportOptions& options)
{
    const TraceSet traces(&data, context, ENumber::eText, options.allParameters ? TraceSet::all() : TraceSet::selected(selection),
                          EFixes::eAlone);
    Extent rows(options.span);
    double line = options.locale.isEmpty() ? kCsvTimeBytes : kCsvTimeBytes + kCsvClockBytes;
    for (const auto& pTrace : traces.traces()) {
        rows.add(*pTrace);
        line += 1 + meanText(*pTrace);
    }
    mBytes = saturatingCast<uint64_t>(rows.steps(options.resolution / 1000.0) * line);
    if (data.count() == 0)
        mLack = tr("No data is loaded: the file will hold its header line alone. Choose a power cycle in the card browser first.");
    else if (traces.size() == 0)
        mLack = tr("No parameter is ticked in the profile panel: the file will hold no values.");
}

ExportOutlook::ExportOutlook(const RecordData& data, const DecodingContext& context, const Selection& selection,
                             const KmlExportOptions& options, double trackSeconds)
{
    Extent points(options.span);
    for (const uint32_t identifier : {KmlPath::kLatitudeIdentifier, KmlPath::kLongitudeIdentifier, KmlPath::kAltitudeIdentifier}) {
        if (const RecordChannel* pChannel = data.channel(identifier))
            points.add(pChannel->entries);
    }
    double bytes = points.steps(options.timeStamp) * kKmlPointBytes + trackSeconds / options.timeStamp * kKmlTrackPointBytes;
    bool isAnyChosen = true;
    if (options.placeMarkOn) {
        const TraceSet traces(&data, context, ENumber::eText, TraceSet::selected(selection), EFixes::eAlone);
        isAnyChosen = traces.size() > 0;
        Extent placemarks(options.span);
        double placemark = kKmlPlacemarkBytes;
        for (const auto& pTrace : traces.traces()) {
            placemarks.add(*pTrace);
            placemark += kKmlValueBytes + static_cast<double>(pTrace->name().size()) + meanText(*pTrace);
        }
        bytes += placemarks.steps(static_cast<double>(options.timeStamp) * options.placeMarkInterval) * placemark;
    }
    mBytes = saturatingCast<uint64_t>(bytes);
    if (data.count() == 0)
        mLack = tr("No data is loaded: the file will hold no flight path. Choose a power cycle in the card browser first.");
    else if (!isAnyChosen)
        mLack = tr("No parameter is ticked in the profile panel: there will be no placemarks of values.");
}

QString ExportOutlook::size() const
{
    return tr("about %1").arg(shown(mBytes));
}

QString ExportOutlook::note(int64_t free) const
{
    if (mBytes < kWorthSaying || !mLack.isEmpty())
        return mLack;
    return free < 0 ? tr("The file will have about %1.").arg(shown(mBytes))
                    : tr("The file will have about %1; %2 are free in the folder.").arg(shown(mBytes), shown(static_cast<uint64_t>(free)));
}

bool ExportOutlook::mayWrite(int64_t free, QWidget* pWindow) const
{
    if (free < 0 || mBytes <= static_cast<uint64_t>(free))
        return true;
    QMessageBox box(QMessageBox::Warning, tr("ZARN Warning"),
                    tr("The file will have about %1, and only %2 are free in the folder.\nTry it nevertheless ?")
                        .arg(shown(mBytes), shown(static_cast<uint64_t>(free))),
                    QMessageBox::Yes | QMessageBox::No, pWindow);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

int64_t ExportOutlook::freeBytes(const QString& folder)
{
    const QStorageInfo storage(folder);
    return storage.isValid() && storage.isReady() ? storage.bytesAvailable() : -1;
}

} // namespace ZARN
