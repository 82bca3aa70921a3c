#pragma once

#include <algorithm>

namespace ZARN {

/// Joins the samples of one sequence that lie outside to episodes: what is inside for less than 5 s does not end one, nor
/// what comes with an earlier time. Knows how long the worst state was in force meanwhile: an episode that is outside a warning for minutes
/// may be outside its limit for seconds.
class EpisodeExtent {
public:
    [[nodiscard]] bool isOpen() const { return mIsOpen; }
    /// Whether the last sample was outside.
    [[nodiscard]] bool isOutside() const { return mIsOpen && !mCameBack; }
    /// Whether an episode is open that a sample outside at that time no longer belongs to.
    [[nodiscard]] bool isOverAt(double seconds) const { return mIsOpen && mCameBack && seconds - mEnd >= kJoined; }
    [[nodiscard]] double start() const { return mStart; }
    [[nodiscard]] double end() const { return mEnd; }
    /// The greatest state.
    [[nodiscard]] int state() const { return mState; }
    /// Seconds in the greatest state, each sample in force until the next one.
    [[nodiscard]] double stateTime() const { return mStateTime; }

    /// A sample outside: it begins an episode when none is open. @return whether none of the episode was as bad before
    bool outside(double seconds, int state)
    {
        if (!mIsOpen) {
            mStart = seconds;
            mState = 0;
        } else if (!mCameBack) {
            count(seconds - mEnd);
        }
        mIsOpen = true;
        mCameBack = false;
        mEnd = seconds;
        mLastState = state;
        if (state <= mState)
            return false;
        mState = state;
        mStateTime = 0.0;
        return true;
    }
    /// A sample inside; only the first one after one outside counts.
    void inside(double seconds)
    {
        if (isOutside())
            count(std::min(seconds - mEnd, kJoined));
        mCameBack = true;
    }
    void close() { mIsOpen = false; }

private:
    static constexpr double kJoined = 5.0; // seconds

    void count(double seconds)
    {
        if (mLastState == mState && seconds > 0.0)
            mStateTime += seconds;
    }

    bool mIsOpen = false;
    bool mCameBack = false; // since the last sample outside
    int mState = 0;
    int mLastState = 0; // of the last sample outside
    double mStart = 0.0;
    double mEnd = 0.0;
    double mStateTime = 0.0;
};

} // namespace ZARN
