#pragma once

#include <cstdint>

namespace ZARN {

/// Makes the ticks of a live record from the stamps of an interface. They count from the first frame and rise with each one. A stamp
/// that leaves the host's clock behind or runs from it (the interface was reset, its counter went round) begins a new count that
/// goes on where the host's clock stands; an interface without stamps is taken at the host's clock.
class LiveClock {
public:
    /// @param stampMicroseconds of the interface, from any beginning; 0 is none
    /// @param hostMicroseconds of a clock that never jumps, at reception
    /// @return ticks of 31.25 ns
    uint64_t ticks(int64_t stampMicroseconds, int64_t hostMicroseconds);

private:
    static constexpr int64_t kTicksPerMicrosecond = 32;
    static constexpr int64_t kMostDrift = 2'000'000; // microseconds; frames wait less than that in the system

    bool mIsBegun = false;
    int64_t mFirstHost = 0;
    int64_t mShift = 0; // from a stamp to the time since the first frame, microseconds
    uint64_t mLast = 0;
};

} // namespace ZARN
