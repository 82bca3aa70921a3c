#pragma once

#include "trace/Trace.h"

namespace ZARN {

/// Times of samples that stand side by side, worked out when they are asked for: most samples are judged by their number alone.
class RunTimes {
public:
    explicit RunTimes(const Trace& trace) : mTrace(trace) {}

    /// Goes on to `count` samples from a position of the trace, Trace::kRun at most.
    void moveTo(std::size_t position, std::size_t count)
    {
        mPosition = position;
        mCount = count;
        mIsRead = false;
    }
    [[nodiscard]] double at(std::size_t i) const { return mIsRead ? mTimes[i] : mTrace.time(mPosition + i); }
    [[nodiscard]] std::span<const double> all()
    {
        if (!mIsRead)
            mTrace.readTimes(mPosition, std::span(mTimes).first(mCount));
        mIsRead = true;
        return {mTimes, mCount};
    }

private:
    const Trace& mTrace;
    std::size_t mPosition = 0;
    std::size_t mCount = 0;
    bool mIsRead = false;
    double mTimes[Trace::kRun];
};

/// Samples of a trace that follow each other in one sequence of WatchedTimes; valid while they are visited.
class WatchedPart {
public:
    WatchedPart(RunTimes& run, std::size_t first, const TraceNumbers& numbers) : mRun(run), mFirst(first), mNumbers(numbers) {}

    /// In the trace, of the first one.
    [[nodiscard]] std::size_t position() const { return mNumbers.position; }
    [[nodiscard]] std::span<const double> numbers() const { return mNumbers.numbers; }
    [[nodiscard]] std::size_t size() const { return mNumbers.numbers.size(); }
    /// Seconds since power-up, of one sample or of all.
    [[nodiscard]] double time(std::size_t i) const { return mRun.at(mFirst + i); }
    [[nodiscard]] std::span<const double> times() const { return mRun.all().subspan(mFirst, size()); }

private:
    RunTimes& mRun;
    const std::size_t mFirst;
    const TraceNumbers mNumbers;
};

} // namespace ZARN
