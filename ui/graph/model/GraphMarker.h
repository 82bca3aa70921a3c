#pragma once

#include <algorithm>
#include <cmath>

namespace ZARN {

/// The two times that the user marks, in seconds; while he drags, the end may be the earlier one. One time twice is a point.
struct GraphMarker {
    double start = 0.0;
    double end = 0.0;

    bool operator==(const GraphMarker&) const = default;
    [[nodiscard]] bool isRange() const { return start != end; }
    [[nodiscard]] bool isFinite() const { return std::isfinite(start) && std::isfinite(end); }
    [[nodiscard]] GraphMarker ordered() const { return {std::min(start, end), std::max(start, end)}; }
    /// The start moves to a time before it, the end to any other one.
    [[nodiscard]] GraphMarker extendedTo(double time) const { return time < start ? GraphMarker{time, end} : GraphMarker{start, time}; }
};

/// A numbered mark at the top edge.
struct TopMarker {
    int index = 0;
    double time = 0.0;
};

} // namespace ZARN
