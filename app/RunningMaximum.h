#pragma once

#include <algorithm>
#include <span>
#include <vector>

namespace ZARN {

/// The greatest of the times up to each position, where times go backwards. It never falls, and its first value at or after a time stands
/// where the first such time does, so that it can be bisected. Times that ascend are that themselves, and nothing is stored.
template <typename Time> class RunningMaximum {
public:
    /// Nothing is stored: the times have ascended so far.
    [[nodiscard]] bool empty() const { return mMaxima.empty(); }
    void reserve(std::size_t count) { mMaxima.reserve(count); }
    /// Takes over times that have ascended so far.
    void begin(std::span<const Time> times) { mMaxima.assign(times.begin(), times.end()); }
    void append(Time time) { mMaxima.push_back(mMaxima.empty() ? time : std::max(mMaxima.back(), time)); }
    [[nodiscard]] const std::vector<Time>& maxima() const { return mMaxima; }

private:
    std::vector<Time> mMaxima;
};

} // namespace ZARN
