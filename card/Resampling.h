#pragma once

#include <cstddef>
#include <vector>

namespace ZARN {

/// One value of a series at a time in seconds.
struct Sample {
    double time;
    double value;
};

/// A series, in ascending time, on the grid 0, step, 2 step, ... up to its last time, by linear interpolation; before the first
/// sample its value holds. Points are worked out when asked for: a grid may be far longer than its series.
class GridSeries {
public:
    GridSeries(double step, const std::vector<Sample>& series);

    /// The number of grid points; 0 for fewer than two samples, and for a series that ends before 0.
    [[nodiscard]] std::size_t size() const { return mSize; }
    [[nodiscard]] double time(std::size_t point) const { return static_cast<double>(point) * mStep; }
    /// The value at a grid point, below size(); points are asked for in rising order.
    double value(std::size_t point);

private:
    double mStep;
    const std::vector<Sample>* mpSeries;
    std::size_t mSize = 0;
    std::size_t mUpper = 1;
};

/// Appends to `out` the series `in` on its grid. Fewer than two samples are copied as they are, replacing `out`; a
/// series that ends before 0 leaves `out` unchanged.
void resampleData(double step, const std::vector<Sample>& in, std::vector<Sample>& out);

} // namespace ZARN
