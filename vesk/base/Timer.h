#pragma once

namespace VESK::Misc {

/// A stopwatch over the wall clock, which runs from its construction on.
class Timer {
public:
    /// The wall clock: seconds since 1970 with a resolution of microseconds.
    [[nodiscard]] static double getTime();

    void restart() { mStart = getTime(); }
    /// Seconds since the start; negative when the wall clock was set back meanwhile.
    [[nodiscard]] double elapsed() const { return getTime() - mStart; }

private:
    double mStart = getTime();
};

} // namespace VESK::Misc
