#pragma once

#include "analysis/Episode.h"
#include "analysis/WatchedTimes.h"

namespace ZARN {

/// Finds when a warning lamp was lit.
class LampEpisodes {
public:
    /// @param group the lamp's device
    /// @param states the lamp as whole numbers, texts as the numbers of its texts
    /// @return whether a sample was watched
    static bool find(const std::string& group, const Trace& states, const Trace& texts, const WatchedTimes& watched, EpisodeList& list);
};

} // namespace ZARN
