#pragma once

#include <QString>

#include <vector>

namespace ZARN {

/// Tick spacing for a range that is `length` pixels long and wants about `spacing` pixels between ticks. @param step gets the distance of
/// ticks that carry a label, -1 when the range is shorter than one  @param subdivisions gets the number of parts between two
void getAutoPara(double min, double max, double length, double spacing, float& step, int& subdivisions);

/// The printf format of numbers that are `step` apart.
void getAutoFormat(float step, QString& format);

/// A place on an axis.
struct AxisTick {
    double value = 0.0;
    bool isMajor = true; ///< carries a label
};

/// The ticks of one axis within a range. Never more than a thousand.
class AxisTicks {
public:
    AxisTicks() = default;
    AxisTicks(double min, double max, double length, double spacing);
    /// The same for seconds: from one second on, ticks are whole parts of minutes, hours and days.
    [[nodiscard]] static AxisTicks ofTime(double min, double max, double length, double spacing);

    [[nodiscard]] const std::vector<AxisTick>& ticks() const { return mTicks; }
    [[nodiscard]] double step() const { return mStep; }
    /// A value's label in the automatic format.
    [[nodiscard]] QString valueLabel(double value) const;
    /// "h:mm:ss", with as many decimals of the seconds as ticks below a second need.
    [[nodiscard]] QString timeLabel(double seconds) const;

private:
    void place(double min, double max, int subdivisions);

    std::vector<AxisTick> mTicks;
    double mStep = -1.0;
};

} // namespace ZARN
