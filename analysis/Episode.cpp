#include "analysis/Episode.h"

#include <algorithm>

namespace ZARN {

void EpisodeList::sort()
{
    for (std::vector<Episode>* pEpisodes : {&watched, &standing}) {
        std::ranges::stable_sort(*pEpisodes,
                                 [](const Episode& a, const Episode& b) { return a.start != b.start ? a.start < b.start : a.end < b.end; });
    }
}

} // namespace ZARN
