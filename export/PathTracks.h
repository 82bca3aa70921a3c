#pragma once

#include "analysis/TimeSpan.h"
#include "card/LoadedCard.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ZARN {

/// The flight path as files of tracks with times want it: in degrees and metres whatever the units of the display are, whole or flight by
/// flight. The recorder's clock, which the satellites set, is taken as UTC. A plain value; the points are shared.
class PathTracks {
public:
    struct Track {
        int flight = 0; ///< its number; 0: everything
        std::span<const FlightPathPoint> points;
    };

    PathTracks() = default;
    /// Everything that is loaded, as one track: the selected flight, or the whole.
    [[nodiscard]] static PathTracks whole(const LoadedCard& loaded);
    /// A track a flight, as far as there are points of it; without any flight one of everything.
    /// @param span only what lies in it; none: all flights
    [[nodiscard]] static PathTracks perFlight(const LoadedCard& loaded, const std::optional<TimeSpan>& span);

    /// How long the tracks of perFlight() are together; 0 without a clock.
    [[nodiscard]] static double seconds(const LoadedCard& loaded, const std::optional<TimeSpan>& span);

    [[nodiscard]] const std::vector<Track>& tracks() const { return mTracks; }
    /// Whether altitudes were recorded; without any those of the points say nothing.
    [[nodiscard]] bool hasAltitude() const { return mHasAltitude; }
    /// Whether there is a clock for the times.
    [[nodiscard]] bool hasClock() const { return mPowerUp.isValid(); }
    /// "2024-06-15T09:12:00.500Z" of a time since power-up; empty without a clock, and for a time that is damage.
    [[nodiscard]] std::string clock(double seconds) const;

    /// Calls `visit` with every unbroken run of points that a globe has a place for.
    template <typename Visitor> static void forEachSegment(std::span<const FlightPathPoint> points, Visitor visit);

private:
    PathTracks(const LoadedCard& loaded, bool isWholePath);
    [[nodiscard]] std::span<const FlightPathPoint> pointsIn(const TimeSpan& span) const;
    [[nodiscard]] static bool isOnEarth(const FlightPathPoint& point);

    QDateTime mPowerUp;
    std::shared_ptr<const std::vector<FlightPathPoint>> mpPoints;
    std::vector<Track> mTracks;
    bool mHasAltitude = false;
};

template <typename Visitor> void PathTracks::forEachSegment(std::span<const FlightPathPoint> points, Visitor visit)
{
    for (auto first = std::ranges::find_if(points, isOnEarth); first != points.end();) {
        const auto end = std::find_if_not(first, points.end(), isOnEarth);
        visit(std::span(first, end));
        first = std::find_if(end, points.end(), isOnEarth);
    }
}

} // namespace ZARN
