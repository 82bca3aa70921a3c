#pragma once

#include <vector>

namespace ZARN {

/// One value of a series at a time in seconds.
struct Sample {
    double time;
    double value;
};

/// Appends to `out` the series `in`, in ascending time, on the grid 0, step, 2 step, ... up to its last time, by linear
/// interpolation; before the first sample its value holds. Fewer than two samples are copied as they are, replacing `out`; a
/// series that ends before 0 leaves `out` unchanged.
void resampleData(double step, const std::vector<Sample>& in, std::vector<Sample>& out);

} // namespace ZARN
