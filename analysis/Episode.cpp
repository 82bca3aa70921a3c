#include "analysis/Episode.h"

#include <algorithm>

namespace ZARN {

const char* episodeKindKey(EEpisodeKind kind)
{
    switch (kind) {
    case EEpisodeKind::eStop: return "stop";
    case EEpisodeKind::eLimit: return "limit";
    case EEpisodeKind::eLamp: return "lamp";
    case EEpisodeKind::eFault: return "fault";
    }
    return "";
}

const char* sideKey(ESide side)
{
    switch (side) {
    case ESide::eHigh: return "high";
    case ESide::eLow: return "low";
    case ESide::eNone: break;
    }
    return "";
}

void EpisodeList::add(EpisodeList&& other)
{
    std::ranges::move(other.watched, std::back_inserter(watched));
    std::ranges::move(other.standing, std::back_inserter(standing));
}

void EpisodeList::sort()
{
    for (std::vector<Episode>* pEpisodes : {&watched, &standing}) {
        std::ranges::stable_sort(*pEpisodes,
                                 [](const Episode& a, const Episode& b) { return a.start != b.start ? a.start < b.start : a.end < b.end; });
    }
}

} // namespace ZARN
