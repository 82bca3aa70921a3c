#pragma once

#include "trace/Trace.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

enum class EVertical { eLevel, eClimb, eDescent };

/// Whether an aircraft climbed or sank at a time, by the altitudes 5 s before and after it. The altitude of a time is that of the latest
/// sample strictly before it, of the first one before that; 0 after the last sample.
class VerticalSteps {
public:
    /// No altitude: level at all times.
    VerticalSteps() = default;
    /// @param altitude in metres
    /// @param seconds times of an altitude lie after -1 and before this
    VerticalSteps(const Trace& altitude, int64_t seconds);

    [[nodiscard]] bool isKnown() const { return mIsKnown; }
    /// Calls `visit` with the end, included, of each step after `from` and what it is, up to `until`.
    template <typename Visitor> void forEachIn(double from, double until, Visitor visit) const;

private:
    /// Times up to and including `until`, after those of the step before.
    struct Step {
        double until;
        double altitude;
    };
    /// The altitude as it was some seconds off.
    class Cursor {
    public:
        Cursor(const std::vector<Step>& steps, double shift) : mSteps(steps), mShift(shift) {}
        void moveTo(double seconds); ///< the step of a later time
        [[nodiscard]] double altitude() const { return mSteps[mPlace].altitude; }
        [[nodiscard]] double until() const; ///< the last time of the step

    private:
        const std::vector<Step>& mSteps;
        double mShift;
        std::size_t mPlace = 0;
    };
    static EVertical vertical(double before, double after);
    void addStep(double until, double altitude);

    bool mIsKnown = false;
    std::vector<Step> mSteps;
};

template <typename Visitor> void VerticalSteps::forEachIn(double from, double until, Visitor visit) const
{
    constexpr double kReach = 5.0; // seconds
    constexpr double infinity = std::numeric_limits<double>::infinity();
    if (!mIsKnown)
        return visit(until, EVertical::eLevel);
    Cursor before(mSteps, -kReach), after(mSteps, kReach);
    while (from < until) {
        const double next = std::nextafter(from, infinity);
        before.moveTo(next);
        after.moveTo(next);
        const double end = std::min({before.until(), after.until(), until});
        visit(end, vertical(before.altitude(), after.altitude()));
        from = end;
    }
}

} // namespace ZARN
