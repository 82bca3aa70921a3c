#pragma once

#include "analysis/Distribution.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ZARN {

/// How a figure of a flight compares with the same of the flights before it.
struct TrendJudgement {
    Distribution band;       ///< of the latest 30 before it, or as many as there are; means nothing without samples
    std::optional<double> z; ///< how far it lies from their median, in robust standard deviations; none after fewer than 10 flights
    bool isUnusual = false;  ///< further than 3.5
    bool isDrifting = false; ///< the latest five, this one among them, lie outside the range of the twenty before them
};

/// Judges a figure. @param earlier those before it, in order of time; @param precision of the parameter, in decimals
[[nodiscard]] TrendJudgement judgeFigure(double figure, std::span<const double> earlier, int precision);

/// A flight as a point of a trend.
struct TrendPoint {
    /// Its place in the order of time; the flight's number comes last.
    struct Place {
        std::string at; ///< "yyyy-MM-ddThh:mm:ss"; without a clock that of the flight before it on its card
        int64_t card = 0;
        int64_t cycle = 0;
        int64_t flight = 0;
        auto operator<=>(const Place&) const = default;
    };
    Place place;
    std::string cycleId;
    std::string dateTime; ///< empty: no clock
    double median = 0.0;
    double p05 = 0.0;
    double p95 = 0.0;
    double minimum = 0.0;
    double maximum = 0.0;
    std::optional<int> precision; ///< of the parameter, where the store knows it
};

/// A parameter in a phase over the flights of an engine, in metric units.
struct Trend {
    std::string engine;
    std::string parameter;
    std::string unit;
    std::string phase;
    std::vector<TrendPoint> points; ///< in order of time
};

/// The judgements of all points, each by those before it. @param precision of the parameter, for points that do not tell it
[[nodiscard]] std::vector<TrendJudgement> judgeTrend(const Trend& trend, int precision);

} // namespace ZARN
