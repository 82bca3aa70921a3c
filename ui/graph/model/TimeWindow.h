#pragma once

#include "ui/graph/model/GraphData.h"

namespace ZARN {

/// The part of time that is seen, in seconds. A value: every rule of zooming, scrolling and following answers with another window, which is
/// the same one where the rule has no answer.
class TimeWindow {
public:
    static constexpr double kSmallest = 1e-6;

    TimeWindow() = default;
    TimeWindow(double begin, double end) : mBegin(begin), mEnd(end) {}
    /// All of a record, with a tenth of it on both sides.
    [[nodiscard]] static TimeWindow ofRecord(double start, double end);
    bool operator==(const TimeWindow&) const = default;

    [[nodiscard]] double begin() const { return mBegin; }
    [[nodiscard]] double end() const { return mEnd; }
    [[nodiscard]] double width() const { return mEnd - mBegin; }
    [[nodiscard]] bool isFinite() const;
    [[nodiscard]] bool contains(double time) const { return mBegin <= time && time <= mEnd; }

    [[nodiscard]] TimeWindow from(double begin) const { return {begin, mEnd}; }
    [[nodiscard]] TimeWindow to(double end) const { return {mBegin, end}; }
    [[nodiscard]] TimeWindow startingAt(double begin) const { return {begin, begin + width()}; }
    [[nodiscard]] TimeWindow endingAt(double end) const { return {end - width(), end}; }
    [[nodiscard]] TimeWindow centredOn(double time) const { return {time - width() / 2, time + width() / 2}; }
    [[nodiscard]] TimeWindow movedBy(double seconds) const { return {mBegin + seconds, mEnd + seconds}; }
    /// In the automatic mode the end stays, in the manual one the start.
    [[nodiscard]] TimeWindow ofWidth(double seconds, eGraphMode mode) const;
    /// Scaled about a time that stays where it is, within what can be shown.
    [[nodiscard]] TimeWindow zoomedAbout(double time, double factor) const;
    /// Moved, when it must be, so that the time stands at least a tenth of the width inside either edge.
    [[nodiscard]] TimeWindow keeping(double time) const;
    /// The width after one step of a zoom that goes on while a button is held.
    [[nodiscard]] float widthZoomed(bool isIn) const;

private:
    double mBegin = 0.0;
    double mEnd = 60.0;
};

} // namespace ZARN
