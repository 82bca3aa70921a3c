#include "analysis/FaultTimeline.h"

#include "analysis/FaultScan.h"
#include "card/record/ByteOrder.h"

#include <cmath>
#include <limits>

namespace ZARN {

namespace {

constexpr double kLateness = 0.01; // seconds by which a sample may be later and still counts as before

} // namespace

uint32_t faultWord(const Payload& payload)
{
    return loadBigEndian<uint32_t>(payload.data() + FaultMatrix::kFirstByte);
}

std::optional<uint32_t> faultWordAt(const RecordChannel* pChannel, double seconds)
{
    if (!pChannel || std::isnan(seconds))
        return {};
    // The first time above a limit is the first at or above the next number after it.
    const double above = std::nextafter(seconds + kLateness, std::numeric_limits<double>::infinity());
    const std::size_t later = pChannel->firstAtOrAfter(above);
    if (later == 0)
        return {};
    return faultWord(pChannel->entries.stored(later - 1).payload);
}

FaultTimeline::FaultTimeline(const FaultMatrix& matrix, const Trace& words)
{
    for (std::size_t kind = 0; kind < kKinds; ++kind)
        mMasks[kind] = matrix.mask([kind](const FaultBit& fault) { return fault.errorType == static_cast<int>(kind) + eErrorInfo; });
    if (words.empty())
        return;
    auto last = static_cast<uint32_t>(words.number(0));
    for (std::size_t kind = 0; kind < kKinds; ++kind)
        append(kind, words.time(0), last);
    words.forEachNumbers([&](const TraceNumbers& run) {
        forEachChange(run.numbers, ~0U, last, [&](std::size_t i, uint32_t word) {
            for (std::size_t kind = 0; kind < kKinds; ++kind) {
                if (((word & mMasks[kind]) != 0) != mChanges[kind].back().on)
                    append(kind, words.time(run.position + i), word);
            }
        });
    });
    for (std::size_t kind = 0; kind < kKinds; ++kind)
        append(kind, words.time(words.size() - 1), last);
}

void FaultTimeline::append(std::size_t kind, double time, uint32_t word)
{
    mChanges[kind].push_back({static_cast<float>(time), (word & mMasks[kind]) != 0});
}

} // namespace ZARN
