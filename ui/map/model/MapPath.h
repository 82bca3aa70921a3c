#pragma once

#include "analysis/TimeSpan.h"
#include "card/FlightPath.h"
#include "openstreet/core/Camera.h"

#include <QPointF>
#include <QRectF>

#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace ZARN {

/// The rectangle of places that a path takes, in degrees, and the view that shows it.
struct MapFit {
    double latitude = 0.0; ///< of the middle
    double longitude = 0.0;
    double range = 0.0; ///< metres across the window; 0 when the path is empty or a single place
};

/// The flight path as the map has it: its points, where they lie on the flat map, and what is found on it.
class MapPath {
public:
    /// Takes the points over, in ascending time. Those whose place is no number are left out, and so are isolated wrong fixes. @return whether
    /// their places are other ones
    bool setPoints(std::span<const FlightPathPoint> points);
    /// The times, in order, in which nothing was received: what the path shows of them is made up.
    void setGaps(const std::vector<TimeSpan>& gaps);

    [[nodiscard]] const std::vector<FlightPathPoint>& points() const { return mPoints; }
    /// Whether the way from the point before to that one was not received.
    [[nodiscard]] bool isGap(std::size_t point) const { return mGaps[point] != 0; }
    /// Where isolated wrong fixes were, relative to the first point.
    [[nodiscard]] const std::vector<OpenStreet::WorldPoint>& wrongFixes() const { return mWrong; }
    /// The points whose time lies in a span: the first one, and the one behind the last.
    [[nodiscard]] std::pair<std::size_t, std::size_t> within(const TimeSpan& span) const;
    /// The passages through a rectangle of the window, in order of time; such as are interrupted for less than that many seconds are one.
    [[nodiscard]] std::vector<TimeSpan> timesIn(const OpenStreet::Camera& camera, const QRectF& area, double interruption) const;
    [[nodiscard]] bool isEmpty() const { return mPoints.empty(); }
    /// Where the points lie, relative to the first one, in the same order. A path across the date line goes on beyond it.
    [[nodiscard]] const std::vector<OpenStreet::WorldPoint>& world() const { return mWorld; }
    [[nodiscard]] const OpenStreet::WorldPoint& origin() const { return mOrigin; }
    /// Changes with every path of other places or gaps.
    [[nodiscard]] int generation() const { return mGeneration; }

    /// The middle of the path, and the width that shows all of it in a window of that size, with a margin.
    [[nodiscard]] MapFit fit(int width, int height) const;
    /// The aircraft at a time: between two points by linear interpolation, the track the short way round and not folded back into 0..360. The first
    /// point up to the second one's time, the last from its own time on; all zeros without points.
    [[nodiscard]] FlightPathPoint positionAt(double time) const;
    /// Whether the path has a place for the time.
    [[nodiscard]] bool spans(double time) const;
    /// The time at which the path is nearest to a place of the window; nothing when it is farther than so many pixels everywhere. Where it
    /// passes the place more than once, that passage which is nearer to the view time.
    [[nodiscard]] std::optional<double> timeNear(const OpenStreet::Camera& camera, const OpenStreet::WindowPoint& point, double pixels,
                                                 double viewTime) const;

private:
    /// A passage of the path through the surroundings of a place: where it is nearest.
    struct Passage {
        double distance = 0.0; ///< pixels
        double time = 0.0;
    };
    [[nodiscard]] std::vector<Passage> passages(const OpenStreet::Camera& camera, const OpenStreet::WindowPoint& point,
                                                double pixels) const;

    void placePoints(const std::vector<FlightPathPoint>& wrong);

    std::vector<FlightPathPoint> mPoints;
    std::vector<OpenStreet::WorldPoint> mWorld;
    std::vector<OpenStreet::WorldPoint> mWrong;
    std::vector<char> mGaps; // for each point, whether one is before it
    OpenStreet::WorldPoint mOrigin;
    int mGeneration = 0;
};

/// Where the place that is the path's origin lies in the window, in the world nearest to the window's middle.
[[nodiscard]] OpenStreet::WindowPoint windowOrigin(const OpenStreet::Camera& camera, const OpenStreet::WorldPoint& origin);

} // namespace ZARN
