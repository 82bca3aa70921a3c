#pragma once

#include <cstddef>
#include <cstdint>

namespace ZARN {

// What the graph and what it is compared with show alike.

inline constexpr int kTraces = 30;
inline constexpr int kColumns = 1200, kHeight = 700;
inline constexpr double kPeriod = 0.008; // seconds: ten million samples are less than a day

/// A random walk with jittered times, as peers get it too. Calls put(time, value) for each sample.
template <typename Put> void walk(int trace, std::size_t samples, Put put)
{
    uint64_t state = 88172645463325252ULL + static_cast<uint64_t>(trace);
    double value = 0;
    for (std::size_t i = 0; i < samples; ++i) {
        state ^= state << 13;
        state ^= state >> 7;
        state ^= state << 17;
        value = (value + static_cast<double>(static_cast<int64_t>(state & 0xFFFF) - 32768) * 0x1p-15) * 0.9999;
        put((static_cast<double>(i) + static_cast<double>(state >> 40) * 0x1p-24 * 0.8) * kPeriod, static_cast<float>(0.5 + value * 0.004));
    }
}

/// A stretch of time in seconds.
struct Span {
    double begin;
    double end;
};

/// The windows that are panned through: all, and a minute in the middle.
inline Span windowOf(std::size_t samples, bool whole)
{
    const double end = static_cast<double>(samples) * kPeriod;
    return whole ? Span{0, end} : Span{end / 2, end / 2 + 60};
}

/// How far the window has been panned at a step: a five hundredth of its width each, over and over a tenth of it.
inline double pan(const Span& window, int step)
{
    return (window.end - window.begin) * 0.002 * (step % 50);
}

} // namespace ZARN
