#pragma once

#include "analysis/SpanIndex.h"
#include "trace/Trace.h"

#include <optional>

namespace ZARN {

/// When the engine ran. From 400 revolutions a minute on it runs, below 300 it stands; between, and at what is no number, nothing
/// changes. Without a speed nothing is known; what is watched is then watched throughout.
class EngineRunning {
public:
    /// Nothing is known.
    EngineRunning();
    /// @param speed revolutions a minute. Without a sound sample nothing is known.
    /// @param endTime of the cycle; a stretch that nothing ends lasts until then
    EngineRunning(const Trace& speed, double endTime);

    [[nodiscard]] bool isKnown() const { return mIsKnown; }
    /// Each from the sample that started it to that which stopped it, in the order found: overlapping where times go backwards. One
    /// without ends when nothing is known.
    [[nodiscard]] const std::vector<TimeSpan>& stretches() const { return mStretches; }
    /// Whether any sample of its speed was a number.
    [[nodiscard]] bool hasNumbers() const { return mHasNumbers; }
    /// When its speed was not recorded for long, up to the end of the cycle: it counts as what it was before.
    [[nodiscard]] const std::vector<TimeSpan>& silences() const { return mSilences; }
    /// How long it ran, in seconds; none when that is not known.
    [[nodiscard]] std::optional<double> duration() const;
    /// Forgets what lies outside of a span; nothing where it is not known.
    void crop(const TimeSpan& span);
    /// The part of each stretch that is watched, without the building up of pressures after the start and their fall at the stop. Those
    /// of short stretches hold no time.
    [[nodiscard]] std::vector<TimeSpan> watched() const;

private:
    bool mIsKnown = false;
    bool mHasNumbers = false;
    std::vector<TimeSpan> mSilences;
    std::vector<TimeSpan> mStretches;
};

} // namespace ZARN
