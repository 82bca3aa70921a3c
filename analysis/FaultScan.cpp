#include "analysis/FaultScan.h"

#include "analysis/EpisodeExtent.h"
#include "profile/FaultMatrix.h"

#include <array>
#include <bit>
#include <map>

namespace ZARN {

namespace {

constexpr std::size_t kBits = FaultMatrix::kBits;
constexpr int kSet = 1; // a bit knows no other state

class FaultScan {
public:
    explicit FaultScan(uint32_t mask) : mMask(mask) {}

    void walk(int sequence, const WatchedPart& part)
    {
        Sequence& state = mSequences[sequence];
        uint32_t word = state.word;
        forEachChange(part.numbers(), mMask, word, [&](std::size_t i, uint32_t next) {
            if (i > 0)
                state.last = part.times()[i - 1];
            change(state, next, part.times()[i], sequence);
        });
        state.last = part.time(part.size() - 1);
    }

    FaultStretches finish()
    {
        FaultStretches found;
        for (auto& [sequence, state] : mSequences) {
            change(state, 0, state.last, sequence);
            for (std::size_t bit = 0; bit < kBits; ++bit)
                close(state.bits[bit], static_cast<int>(bit), sequence);
        }
        for (const auto& stretches : mFound)
            found.all.insert(found.all.end(), stretches.begin(), stretches.end());
        found.hasWatched = !mSequences.empty() && mSequences.rbegin()->first != WatchedTimes::kOthers;
        return found;
    }

private:
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
                extent.outside(state.last, kSet);
                extent.inside(time);
                continue;
            }
            if (extent.isOverAt(time))
                close(extent, bit, sequence);
            extent.outside(time, kSet);
        }
        state.word = word;
    }

    void close(EpisodeExtent& extent, int bit, int sequence)
    {
        if (!extent.isOpen())
            return;
        mFound[static_cast<std::size_t>(bit)].push_back(
            {bit, sequence != WatchedTimes::kOthers, extent.start(), extent.end(), extent.stateTime()});
        extent.close();
    }

    const uint32_t mMask;
    std::map<int, Sequence> mSequences;
    std::array<std::vector<FaultStretch>, kBits> mFound;
};

} // namespace

FaultStretches faultStretches(const Trace& words, uint32_t mask, const WatchedTimes& times)
{
    FaultScan scan(mask);
    times.forEachPart(words, [&scan](int sequence, const WatchedPart& part) { scan.walk(sequence, part); });
    return scan.finish();
}

} // namespace ZARN
