#include "export/ExportGpx.h"

#include "app/NumberText.h"
#include "app/Revision.h"
#include "app/SafeFile.h"
#include "export/ProgressSpan.h"
#include "export/XmlWriter.h"

#include <cmath>

namespace ZARN {

namespace {

constexpr int kDegreeDecimals = 8;
constexpr int kAltitudeDecimals = 1;
constexpr uint64_t kPointsAStep = 1024; // between two reports of progress
constexpr double kMostLatitude = 90.0;
constexpr double kMostLongitude = 180.0;

std::string fixed(double number, int decimals)
{
    char buffer[kNumberTextSize];
    return {buffer, writeFixed(buffer, number, decimals)};
}

std::string timeText(const QDateTime& cycleDate, double seconds)
{
    const auto milliseconds = static_cast<qint64>(std::llround(seconds * 1000)); // a path's times are bounded
    return cycleDate.addMSecs(milliseconds).toString("yyyy-MM-ddThh:mm:ss.zzz'Z'").toStdString();
}

bool isOnEarth(const FlightPathPoint& point)
{
    return std::fabs(point.latitude) <= kMostLatitude && point.longitude >= -kMostLongitude && point.longitude < kMostLongitude;
}

/// Writes one track point after the other, in segments.
class TrackWriter {
public:
    TrackWriter(XmlWriter& writer, const QDateTime& cycleDate) : mWriter(writer), mCycleDate(cycleDate) {}

    void add(const FlightPathPoint& point)
    {
        if (!isOnEarth(point))
            return endSegment();
        if (!mInSegment)
            mWriter.begin("trkseg");
        mInSegment = true;
        mWriter.begin("trkpt",
                      " lat=\"" + fixed(point.latitude, kDegreeDecimals) + "\" lon=\"" + fixed(point.longitude, kDegreeDecimals) + "\"");
        if (std::isfinite(point.altitude))
            mWriter.text("ele", fixed(point.altitude, kAltitudeDecimals));
        if (mCycleDate.isValid())
            mWriter.text("time", timeText(mCycleDate, point.time));
        mWriter.end("trkpt");
    }
    void endSegment()
    {
        if (mInSegment)
            mWriter.end("trkseg");
        mInSegment = false;
    }

private:
    XmlWriter& mWriter;
    const QDateTime& mCycleDate;
    bool mInSegment = false;
};

std::string trackName(const LoadedCard& loaded)
{
    return (loaded.cycleName.isEmpty() ? loaded.card : loaded.card + ", " + loaded.cycleName).toStdString();
}

/// The path in metric units: the one that is shown, or worked out anew.
std::shared_ptr<const std::vector<FlightPathPoint>> metricPath(const LoadedCard& loaded)
{
    if (loaded.context.unit() == EUnit::eMetric || loaded.pPath->empty())
        return loaded.pPath;
    FlightPath rebuilt;
    rebuilt.build(*loaded.pRecord, loaded.context.in(EUnit::eMetric));
    rebuilt.crop(loaded.pPath->front().time, loaded.pPath->back().time);
    return rebuilt.shared();
}

void beginDocument(XmlWriter& writer, const std::string& name, const QDateTime& cycleDate)
{
    writer.declaration();
    writer.begin("gpx", " version=\"1.1\" creator=\"" + Revision::getRevisionString() + "\" xmlns=\"http://www.topografix.com/GPX/1/1\"");
    writer.begin("metadata");
    writer.text("name", name);
    if (cycleDate.isValid())
        writer.text("time", timeText(cycleDate, 0));
    writer.end("metadata");
    writer.begin("trk");
    writer.text("name", name);
}

} // namespace

bool ExportGpx::exportData(const LoadedCard& loaded, SafeFile& file, Progress& progress)
{
    mError.clear();
    if (!file.open()) {
        mError = file.error();
        return false;
    }
    const auto pPoints = metricPath(loaded);
    const ProgressSpan span(progress, 0, 100);
    XmlWriter writer(file);
    beginDocument(writer, trackName(loaded), loaded.cycleDate);
    TrackWriter track(writer, loaded.cycleDate);
    uint64_t done = 0;
    for (const FlightPathPoint& point : *pPoints) {
        if (++done % kPointsAStep == 0 && !span.step(done, pPoints->size()))
            return false;
        track.add(point);
    }
    track.endSegment();
    writer.end("trk");
    writer.end("gpx");
    if (writer.flush() && file.commit())
        return true;
    mError = file.error();
    return false;
}

} // namespace ZARN
