#pragma once

namespace ZARN {

/// Joins the samples of one sequence that lie outside to episodes: what is inside for less than 5 s does not end one, nor
/// what comes with an earlier time.
class EpisodeExtent {
public:
    [[nodiscard]] bool isOpen() const { return mIsOpen; }
    /// Whether the last sample was outside.
    [[nodiscard]] bool isOutside() const { return mIsOpen && !mCameBack; }
    /// Whether an episode is open that a sample outside at that time no longer belongs to.
    [[nodiscard]] bool isOverAt(double seconds) const { return mIsOpen && mCameBack && seconds - mEnd >= kJoined; }
    [[nodiscard]] double start() const { return mStart; }
    [[nodiscard]] double end() const { return mEnd; }

    /// A sample outside: it begins an episode when none is open.
    void outside(double seconds)
    {
        if (!mIsOpen)
            mStart = seconds;
        mIsOpen = true;
        mCameBack = false;
        mEnd = seconds;
    }
    void inside() { mCameBack = true; }
    void close() { mIsOpen = false; }

private:
    static constexpr double kJoined = 5.0; // seconds

    bool mIsOpen = false;
    bool mCameBack = false; // since the last sample outside
    double mStart = 0.0;
    double mEnd = 0.0;
};

} // namespace ZARN
