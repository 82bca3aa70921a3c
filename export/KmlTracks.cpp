#include "export/KmlTracks.h"

#include "app/NumberText.h"

#include <cmath>

namespace ZARN {

namespace {

/// Divided by blanks, unlike those of a line.
std::string trackCoordinates(const FlightPathPoint& point, double altitude)
{
    constexpr int degreeDecimals = 8;
    char text[3 * kNumberTextSize];
    char* pOut = writeFixed(text, point.longitude, degreeDecimals);
    *pOut++ = ' ';
    pOut = writeFixed(pOut, point.latitude, degreeDecimals);
    *pOut++ = ' ';
    return {text, writeFixed(pOut, altitude, 1)};
}

} // namespace

void KmlTracks::write(const PathTracks::Track& track)
{
    const std::string name = track.flight > 0 ? "Flight " + std::to_string(track.flight) : "Recording";
    mWriter.begin("Folder");
    mWriter.text("name", name);
    PathTracks::forEachSegment(track.points, [&](std::span<const FlightPathPoint> points) { writeSegment(name, points); });
    mWriter.end("Folder");
}

void KmlTracks::writeSegment(const std::string& name, std::span<const FlightPathPoint> points)
{
    const std::vector<FlightPathPoint> shown = thinned(points);
    mWriter.begin("Placemark");
    mWriter.text("name", name);
    mWriter.text("styleUrl", std::string("#") + kStyle);
    mWriter.begin("gx:Track");
    mWriter.text("altitudeMode", mPath.hasAltitude() ? "absolute" : "clampToGround");
    for (const FlightPathPoint& point : shown)
        mWriter.text("when", mPath.clock(point.time));
    for (const FlightPathPoint& point : shown)
        mWriter.text("gx:coord", trackCoordinates(point, std::isfinite(point.altitude) ? point.altitude : 0.0));
    mWriter.end("gx:Track");
    mWriter.end("Placemark");
}

// Of each step the first point, and the last of all: a landing is not cut off.
std::vector<FlightPathPoint> KmlTracks::thinned(std::span<const FlightPathPoint> points) const
{
    std::vector<FlightPathPoint> shown;
    for (const FlightPathPoint& point : points) {
        if (shown.empty() || point.time - shown.back().time >= mStep)
            shown.push_back(point);
    }
    if (shown.back().time < points.back().time)
        shown.push_back(points.back());
    return shown;
}

} // namespace ZARN
