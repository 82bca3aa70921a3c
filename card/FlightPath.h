#pragma once

#include "card/record/RecordData.h"
#include "profile/DecodingContext.h"

#include <memory>
#include <vector>

namespace ZARN {

/// One point of the flight path. Positions in degrees, the rest in the display units of the profile.
struct FlightPathPoint {
    double time; ///< seconds since power-up, a multiple of the grid's half second
    double latitude;
    double longitude;
    double altitude;
    double groundSpeed;
    double track;
};

/// The flight path of the loaded data on a half-second grid, in ascending time. Leaves out recorded times that are damage, so
/// that no grid can grow without bound.
class FlightPath {
public:
    static constexpr double kStep = 0.5;

    /// Rebuilds the path over everything loaded.
    void build(const RecordData& data, const DecodingContext& context);
    /// Keeps only the points from `from` to `to`, both included.
    void crop(double from, double to);
    void clear() { mpPoints = std::make_shared<std::vector<FlightPathPoint>>(); }

    [[nodiscard]] const std::vector<FlightPathPoint>& points() const { return *mpPoints; }
    /// That of the altitudes and speeds, which is not the one in force until the path has been built anew.
    [[nodiscard]] EUnit unit() const { return mUnit; }
    /// For whoever works on them while another path is built.
    [[nodiscard]] std::shared_ptr<const std::vector<FlightPathPoint>> shared() const { return mpPoints; }

private:
    std::shared_ptr<const std::vector<FlightPathPoint>> mpPoints = std::make_shared<std::vector<FlightPathPoint>>();
    EUnit mUnit = EUnit::eMetric;
};

} // namespace ZARN
