#include "analysis/LampEpisodes.h"

#include "analysis/EpisodeExtent.h"

#include <map>

namespace ZARN {

namespace {

class LampScan {
public:
    LampScan(const std::string& group, const Trace& texts, EpisodeList& list) : mGroup(group), mTexts(texts), mList(list) {}

    void walk(int sequence, const WatchedPart& part)
    {
        Sequence& lamp = mSequences[sequence];
        for (std::size_t i = 0; i < part.size(); ++i) {
            const int number = static_cast<int>(part.numbers()[i]);
            if (number != 0)
                light(lamp, sequence, part.times()[i], number == eThresholdLimit ? eThresholdLimit : eThresholdWarning, part.position() + i);
            else if (lamp.extent.isOutside())
                lamp.extent.inside(part.time(i));
        }
    }

    bool finish()
    {
        for (auto& [sequence, lamp] : mSequences)
            close(lamp, sequence);
        return !mSequences.empty() && mSequences.rbegin()->first != WatchedTimes::kOthers;
    }

private:
    struct Sequence {
        EpisodeExtent extent;
        std::size_t position = 0; // of the first sample of its greatest state
    };

    void light(Sequence& lamp, int sequence, double time, int state, std::size_t position)
    {
        if (lamp.extent.isOverAt(time))
            close(lamp, sequence);
        if (lamp.extent.outside(time, state))
            lamp.position = position;
    }

    void close(Sequence& lamp, int sequence)
    {
        if (!lamp.extent.isOpen())
            return;
        Episode episode;
        episode.kind = EEpisodeKind::eLamp;
        episode.group = mGroup;
        episode.parameter = mTexts.name();
        episode.unit = mTexts.parameter().unitMetric;
        episode.state = lamp.extent.state();
        episode.stateTime = lamp.extent.stateTime();
        episode.start = lamp.extent.start();
        episode.end = lamp.extent.end();
        mTexts.decoder().appendText(mTexts.number(lamp.position), episode.text);
        mList.add(std::move(episode), sequence != WatchedTimes::kOthers);
        lamp.extent.close();
    }

    const std::string& mGroup;
    const Trace& mTexts;
    EpisodeList& mList;
    std::map<int, Sequence> mSequences;
};

} // namespace

bool LampEpisodes::find(const std::string& group, const Trace& states, const Trace& texts, const WatchedTimes& watched, EpisodeList& list)
{
    LampScan scan(group, texts, list);
    watched.forEachPart(states, [&scan](int sequence, const WatchedPart& part) { scan.walk(sequence, part); });
    return scan.finish();
}

} // namespace ZARN
