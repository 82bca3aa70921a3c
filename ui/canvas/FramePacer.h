#pragma once

#include <chrono>

namespace ZARN {

/// Spaces the frames of a view which time alone moves, so that slow drawing leaves time for everything else: a frame is due once as much
/// time has passed since the last one as it took, twice over.
class FramePacer {
public:
    using Clock = std::chrono::steady_clock;

    void begin(Clock::time_point now = Clock::now()) { mBegin = now; }
    void end(Clock::time_point now = Clock::now()) { mEnd = now; }
    [[nodiscard]] bool isDue(Clock::time_point now = Clock::now()) const { return now - mEnd >= 2 * (mEnd - mBegin); }

private:
    Clock::time_point mBegin;
    Clock::time_point mEnd;
};

} // namespace ZARN
