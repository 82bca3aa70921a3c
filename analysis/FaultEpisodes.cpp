#include "analysis/FaultEpisodes.h"

#include "analysis/FaultScan.h"

namespace ZARN {

bool FaultEpisodes::isJudged(const FaultBit& fault)
{
    return fault.errorType == eErrorWarning || fault.errorType == eErrorFault;
}

std::vector<std::string> FaultEpisodes::sources(const FaultMatrix& matrix)
{
    std::vector<std::string> names;
    for (const auto& [bit, fault] : matrix.bits) {
        if (isJudged(fault))
            names.push_back(fault.name);
    }
    return names;
}

bool FaultEpisodes::find(const FaultMatrix& matrix, const Trace& words, const WatchedTimes& watched, EpisodeList& list)
{
    const FaultStretches found = faultStretches(words, matrix.mask(isJudged), watched);
    for (const FaultStretch& stretch : found.all) {
        const FaultBit& fault = matrix.bits.at(stretch.bit);
        Episode episode;
        episode.kind = EEpisodeKind::eFault;
        episode.group = matrix.name;
        episode.parameter = fault.name;
        episode.state = fault.errorType == eErrorFault ? eThresholdLimit : eThresholdWarning;
        episode.stateTime = stretch.duration;
        episode.start = stretch.on;
        episode.end = stretch.off;
        episode.text = fault.description;
        list.add(std::move(episode), stretch.isWatched);
    }
    return found.hasWatched;
}

} // namespace ZARN
