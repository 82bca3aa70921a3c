#pragma once

#include "analysis/TimeSpan.h"

#include <span>
#include <vector>

namespace ZARN {

/// Tells of many spans, which may overlap, the first one in their order that holds a time; both ends included. Logarithmic a question.
class SpanIndex {
public:
    static constexpr int kNone = -1;
    /// Times after `from` up to and including `until` with the same answer.
    struct Step {
        double from;
        double until;
        int span; ///< its place in the order given, or kNone

        [[nodiscard]] bool holds(double seconds) const { return seconds > from && seconds <= until; }
    };

    explicit SpanIndex(std::span<const TimeSpan> spans = {});

    [[nodiscard]] const Step& at(double seconds) const;
    [[nodiscard]] int spanAt(double seconds) const { return at(seconds).span; }
    [[nodiscard]] const std::vector<Step>& steps() const { return mSteps; }

private:
    void addStep(double until, int span);

    std::vector<Step> mSteps; // from minus to plus infinity without a gap
};

/// The number just below a time: the last one that is before it.
[[nodiscard]] double lastBefore(double seconds);

} // namespace ZARN
