#include "store/NormalBands.h"

#include "store/UnusualFigure.h"

#include <algorithm>
#include <array>

namespace ZARN {

namespace {

constexpr std::size_t kFewest = 10, kMost = 30; // flights, as judgements of trends have it
constexpr double kLower = 0.05, kUpper = 0.95;
constexpr std::array kShares = {0.0, kLower, 0.5, kUpper, 1.0}; // of the samples up to each known value

std::array<double, kShares.size()> valuesOf(const TrendPoint& point)
{
    return {point.minimum, point.p05, point.median, point.p95, point.maximum};
}

enum class EBound { eBelow, eUpTo };

/// The share of a flight's samples below a value, or up to it.
double shareOf(const TrendPoint& point, double value, EBound bound)
{
    const auto values = valuesOf(point);
    const auto found = bound == EBound::eBelow ? std::ranges::lower_bound(values, value) : std::ranges::upper_bound(values, value);
    if (found == values.begin() || found == values.end())
        return found == values.begin() ? 0.0 : 1.0;
    const auto above = static_cast<std::size_t>(found - values.begin());
    const double way = (value - values[above - 1]) / (values[above] - values[above - 1]);
    return kShares[above - 1] + way * (kShares[above] - kShares[above - 1]);
}

double shareOf(std::span<const TrendPoint> points, double value, EBound bound)
{
    double sum = 0.0;
    for (const TrendPoint& point : points)
        sum += shareOf(point, value, bound);
    return sum / static_cast<double>(points.size());
}

} // namespace

double jointPercentile(std::span<const TrendPoint> points, double share)
{
    std::vector<double> knots;
    for (const TrendPoint& point : points)
        std::ranges::copy(valuesOf(point), std::back_inserter(knots));
    std::ranges::sort(knots);
    const auto found = std::ranges::partition_point(knots, [&](double knot) { return shareOf(points, knot, EBound::eUpTo) < share; });
    if (found == knots.begin() || found == knots.end())
        return found == knots.begin() ? knots.front() : knots.back();
    // Straight between two known values; at one of them, where many samples are alike, it jumps.
    const double from = *(found - 1), first = shareOf(points, from, EBound::eUpTo), last = shareOf(points, *found, EBound::eBelow);
    return last <= share ? *found : from + (*found - from) * (share - first) / (last - first);
}

std::vector<NormalBand> normalBands(StoreReader& store, const CycleHead& cycle, std::span<const RecordFlight> flights)
{
    const std::string engine = store.engineOf(cycle.engine.id);
    const std::vector<TrendPoint::Place> places = placesOf(store, engine, cycle, flights);
    std::vector<NormalBand> bands;
    for (const Trend& trend : store.trends(engine)) {
        for (std::size_t flight = 0; flight < flights.size(); ++flight) {
            const auto end = std::ranges::lower_bound(trend.points, places[flight], {}, &TrendPoint::place);
            const std::span<const TrendPoint> before(trend.points.begin(), end);
            if (before.size() < kFewest)
                continue;
            const std::span<const TrendPoint> latest = before.last(std::min(before.size(), kMost));
            bands.push_back({trend.parameter, trend.unit, trend.phase, static_cast<int>(flight + 1), jointPercentile(latest, kLower),
                             jointPercentile(latest, kUpper), latest.size()});
        }
    }
    return bands;
}

} // namespace ZARN
