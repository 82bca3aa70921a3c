#include "analysis/FaultEpisodes.h"

#include "analysis/EpisodeExtent.h"

#include <array>
#include <bit>
#include <map>

namespace ZARN {

namespace {

bool isJudged(const FaultBit& fault)
{
    return fault.errorType == eErrorWarning || fault.errorType == eErrorFault;
}

class FaultScan {
public:
    explicit FaultScan(const FaultMatrix& matrix) : mMatrix(matrix), mMask(matrix.mask(isJudged)) {}

    void walk(int sequence, const WatchedPart& part)
    {
        Sequence& state = mSequences[sequence];
        for (std::size_t i = 0; i < part.size(); ++i) {
            const uint32_t word = static_cast<uint32_t>(part.numbers()[i]) & mMask;
            if (word == state.word)
                continue;
            if (i > 0)
                state.last = part.times()[i - 1];
            change(state, word, part.times()[i], sequence);
        }
        state.last = part.time(part.size() - 1);
    }

    /// The episodes bit by bit, each bit's in stored order. @return whether a sample was watched
    bool finish(EpisodeList& list)
    {
        for (auto& [sequence, state] : mSequences) {
            change(state, 0, state.last, sequence);
            for (std::size_t bit = 0; bit < kBits; ++bit)
                close(state.bits[bit], static_cast<int>(bit), sequence);
        }
        for (const auto& episodes : mFound) {
            for (const auto& [sequence, episode] : episodes)
                list.add(episode, sequence != WatchedTimes::kOthers);
        }
        return !mSequences.empty() && mSequences.rbegin()->first != WatchedTimes::kOthers;
    }

private:
    static constexpr std::size_t kBits = FaultMatrix::kBits;
    struct Sequence {
        uint32_t word = 0;
        double last = 0.0;
        std::array<EpisodeExtent, kBits> bits;
    };

    void change(Sequence& state, uint32_t word, double time, int sequence)
    {
        for (uint32_t changed = word ^ state.word; changed != 0; changed &= changed - 1) {
            const int bit = std::countr_zero(changed);
            EpisodeExtent& extent = state.bits[static_cast<std::size_t>(bit)];
            if ((word >> bit & 1) == 0) {
                extent.outside(state.last, stateOf(bit));
                extent.inside(time);
                continue;
            }
            if (extent.isOverAt(time))
                close(extent, bit, sequence);
            extent.outside(time, stateOf(bit));
        }
        state.word = word;
    }

    [[nodiscard]] int stateOf(int bit) const { return mMatrix.bits.at(bit).errorType == eErrorFault ? eThresholdLimit : eThresholdWarning; }

    void close(EpisodeExtent& extent, int bit, int sequence)
    {
        if (!extent.isOpen())
            return;
        const FaultBit& fault = mMatrix.bits.at(bit);
        Episode episode;
        episode.kind = EEpisodeKind::eFault;
        episode.group = mMatrix.name;
        episode.parameter = fault.name;
        episode.state = extent.state();
        episode.stateTime = extent.stateTime();
        episode.start = extent.start();
        episode.end = extent.end();
        episode.text = fault.description;
        mFound[static_cast<std::size_t>(bit)].emplace_back(sequence, std::move(episode));
        extent.close();
    }

    const FaultMatrix& mMatrix;
    const uint32_t mMask;
    std::map<int, Sequence> mSequences;
    std::array<std::vector<std::pair<int, Episode>>, kBits> mFound;
};

} // namespace

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
    FaultScan scan(matrix);
    watched.forEachPart(words, [&scan](int sequence, const WatchedPart& part) { scan.walk(sequence, part); });
    return scan.finish(list);
}

} // namespace ZARN
