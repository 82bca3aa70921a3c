#pragma once

#include <muParser.h>

#include <deque>

namespace ZARN {

/// A call within a formula whose value depends on what was before.
class FormulaStep {
public:
    enum class EKind {
        eDelta,    ///< less the value before; not a number at first
        eIntegral, ///< value times seconds since the beginning, straight between the values
        eAverage,  ///< mean over the last seconds, each value for as long as it stood
        eLag       ///< the value that stood so many seconds ago; not a number before
    };

    /// @param argument what it is taken of  @param seconds that it looks back
    FormulaStep(EKind kind, mu::Parser argument, double seconds) : mKind(kind), mArgument(std::move(argument)), mSeconds(seconds) {}

    void begin();
    void evaluate(double time);
    [[nodiscard]] double* value() { return &mValue; } ///< where formulas read it

private:
    struct Stay {
        double from;
        double value;
    };
    [[nodiscard]] double average(double time);
    [[nodiscard]] double lag(double time);
    void leave(const Stay& stay, double until, double sign);

    EKind mKind;
    mu::Parser mArgument;
    double mSeconds;
    double mValue = 0.0;
    bool mHasPast = false;
    Stay mLast{};
    std::deque<Stay> mPast;
    double mArea = 0.0;    // of finite stays in the window but the last
    double mCovered = 0.0; // seconds
    std::size_t mLeft = 0; // stays that went out of the window
};

} // namespace ZARN
