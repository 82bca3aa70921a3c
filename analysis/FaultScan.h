#pragma once

#include "analysis/WatchedTimes.h"

#include <cstdint>
#include <span>
#include <vector>

namespace ZARN {

/// Calls `visit` with the place and the word of each sample at which a bit of the mask is another than in `word`, and keeps it there.
template <typename Visitor> void forEachChange(std::span<const double> words, uint32_t mask, uint32_t& word, Visitor visit)
{
    for (std::size_t i = 0; i < words.size(); ++i) {
        const uint32_t next = static_cast<uint32_t>(words[i]) & mask;
        if (next != word)
            visit(i, next);
        word = next;
    }
}

/// A bit of a fault word was set from one time to another, with less than 5 s between any two samples of it in which it was not.
struct FaultStretch {
    int bit = 0;
    bool isWatched = false;
    double on = 0.0;  ///< of the first sample in which it was set; seconds since power-up
    double off = 0.0; ///< of the last one in stored order: before the first where times go backwards
    double duration = 0.0; ///< seconds in which it was set
};

/// What a walk found.
struct FaultStretches {
    std::vector<FaultStretch> all; ///< bit by bit, those of each in stored order
    bool hasWatched = false;       ///< whether a sample was watched
};

/// When the bits of a mask were set, in one walk over the words of a matrix, faultWords(). Each sequence of the times is judged by itself.
[[nodiscard]] FaultStretches faultStretches(const Trace& words, uint32_t mask, const WatchedTimes& times);

} // namespace ZARN
