#pragma once

#include "analysis/Episode.h"
#include "analysis/WatchedTimes.h"
#include "profile/FaultMatrix.h"

namespace ZARN {

/// Finds when warnings and faults of an error matrix were reported, in one walk over its words; infos are none.
class FaultEpisodes {
public:
    [[nodiscard]] static bool isJudged(const FaultBit& fault);
    /// The names of the bits that are judged, each a source of its own.
    [[nodiscard]] static std::vector<std::string> sources(const FaultMatrix& matrix);
    /// @param words the words of the matrix, faultWords()
    /// @return whether a sample was watched
    static bool find(const FaultMatrix& matrix, const Trace& words, const WatchedTimes& watched, EpisodeList& list);
};

} // namespace ZARN
