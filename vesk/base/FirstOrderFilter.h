#pragma once

namespace VESK::Math {

/// A first-order low-pass filter (an RC element). The discretisation is exact for inputs that are constant between two
/// updates: any division of a time span into updates gives the same output.
class FirstOrderFilter {
public:
    /// @param timeConstant seconds after which a step has come through to 63 %; 0 or less passes every value on.
    explicit FirstOrderFilter(double timeConstant) : mTimeConstant(timeConstant) {}

    /// Takes the next input value. The first one after construction or reset() sets the output; one that is not finite is
    /// ignored, for it would never leave the filter again.
    /// @param interval seconds since the previous update; 0 or less leaves the output as it is.
    /// @return the output.
    double update(double value, double interval);
    /// The output of the last update, 0.0 when there was none.
    [[nodiscard]] double value() const { return mValue; }
    void reset();

private:
    double mTimeConstant;
    double mValue = 0.0;
    bool mStarted = false;
};

} // namespace VESK::Math
