#include "export/ExportGpx.h"

#include "app/NumberText.h"
#include "app/Revision.h"
#include "app/SafeFile.h"
#include "export/PathTracks.h"
#include "export/ProgressSpan.h"
#include "export/XmlWriter.h"

#include <cmath>

namespace ZARN {

namespace {

constexpr int kDegreeDecimals = 8;
constexpr int kAltitudeDecimals = 1;
constexpr uint64_t kPointsAStep = 1024; // between two reports of progress

std::string fixed(double number, int decimals)
{
    char buffer[kNumberTextSize];
    return {buffer, writeFixed(buffer, number, decimals)};
}

/// Writes one track after the other.
class TrackWriter {
public:
    TrackWriter(XmlWriter& writer, const PathTracks& path, const ProgressSpan& progress) : mWriter(writer), mPath(path), mProgress(progress)
    {
        for (const PathTracks::Track& track : path.tracks())
            mPoints += track.points.size();
    }

    /// @return false when the user cancels.
    bool write(const PathTracks::Track& track, const std::string& name)
    {
        mWriter.begin("trk");
        mWriter.text("name", name);
        PathTracks::forEachSegment(track.points, [this](std::span<const FlightPathPoint> points) {
            mWriter.begin("trkseg");
            for (const FlightPathPoint& point : points)
                writePoint(point);
            mWriter.end("trkseg");
        });
        mWriter.end("trk");
        return mGoesOn;
    }

private:
    void writePoint(const FlightPathPoint& point)
    {
        if (++mDone % kPointsAStep == 0)
            mGoesOn = mGoesOn && mProgress.step(mDone, mPoints);
        if (!mGoesOn)
            return;
        mWriter.begin("trkpt",
                      " lat=\"" + fixed(point.latitude, kDegreeDecimals) + "\" lon=\"" + fixed(point.longitude, kDegreeDecimals) + "\"");
        if (mPath.hasAltitude() && std::isfinite(point.altitude))
            mWriter.text("ele", fixed(point.altitude, kAltitudeDecimals));
        if (mPath.hasClock())
            mWriter.text("time", mPath.clock(point.time));
        mWriter.end("trkpt");
    }

    XmlWriter& mWriter;
    const PathTracks& mPath;
    const ProgressSpan& mProgress;
    uint64_t mPoints = 0; // of which mDone are written
    uint64_t mDone = 0;
    bool mGoesOn = true;
};

std::string trackName(const LoadedCard& loaded)
{
    return (loaded.cycleName.isEmpty() ? loaded.card : loaded.card + ", " + loaded.cycleName).toStdString();
}

void beginDocument(XmlWriter& writer, const std::string& name, const PathTracks& path)
{
    writer.declaration();
    writer.begin("gpx", " version=\"1.1\" creator=\"" + Revision::getRevisionString() + "\" xmlns=\"http://www.topografix.com/GPX/1/1\"");
    writer.begin("metadata");
    writer.text("name", name);
    if (path.hasClock())
        writer.text("time", path.clock(0));
    writer.end("metadata");
}

} // namespace

bool ExportGpx::exportData(const LoadedCard& loaded, SafeFile& file, ETracks tracks, Progress& progress)
{
    mError.clear();
    if (!file.open()) {
        mError = file.error();
        return false;
    }
    const bool isPerFlight = tracks == eTrackPerFlight && loaded.flightNumber == 0;
    const PathTracks path = isPerFlight ? PathTracks::perFlight(loaded, {}) : PathTracks::whole(loaded);
    const std::string name = trackName(loaded);
    const ProgressSpan span(progress, 0, 100);
    XmlWriter writer(file);
    beginDocument(writer, name, path);
    TrackWriter writeTrack(writer, path, span);
    for (const PathTracks::Track& track : path.tracks()) {
        if (!writeTrack.write(track, track.flight > 0 ? name + ", Flight " + std::to_string(track.flight) : name))
            return false;
    }
    writer.end("gpx");
    if (writer.flush() && file.commit())
        return true;
    mError = file.error();
    return false;
}

} // namespace ZARN
