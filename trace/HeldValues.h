#pragma once

#include "trace/ChannelTrace.h"
#include "trace/ComputedChannel.h"

#include <array>

namespace ZARN {

/// The samples of one of several parameters that are walked through together, a run at a time.
class HeldOperand {
public:
    HeldOperand(const RecordData& data, const DecodingContext& context, const ProfileParameter& parameter, CoordinateFilter& filter);

    [[nodiscard]] bool atEnd() const { return mNext == mRun.size(); }
    [[nodiscard]] uint64_t ticks() const { return mRun[mNext].ticks; }
    /// The value of the sample, which is left.
    double take()
    {
        const double number = mNumbers[mNext++];
        if (mNext == mRun.size())
            read();
        return number;
    }

private:
    void read();

    std::shared_ptr<const RecordChannel> mpChannel;
    ChannelTrace mTrace;
    std::size_t mPosition = 0;
    std::span<const StoredRecord> mRun;
    std::size_t mNext = 0;
    std::array<double, Trace::kRun> mNumbers;
};

/// Calls `visit` with the ticks of a time and the values of all parameters then, as often as any of them has a sample, in order of time: the
/// newest value of each is held until its next. Begins when every one of them has had a sample; never where one has none. Values are in the
/// context's unit.
template <typename Visitor>
void forEachHeld(const std::vector<const ProfileParameter*>& parameters, const RecordData& data, const DecodingContext& context,
                 Visitor visit)
{
    CoordinateFilter filter;
    std::vector<std::unique_ptr<HeldOperand>> operands;
    for (const ProfileParameter* pParameter : parameters) {
        operands.push_back(std::make_unique<HeldOperand>(data, context, *pParameter, filter));
        if (operands.back()->atEnd())
            return;
    }
    std::vector<double> values(operands.size());
    std::vector<bool> isKnown(operands.size());
    std::size_t unknown = operands.size(), ended = 0;
    while (ended < operands.size()) {
        uint64_t ticks = UINT64_MAX;
        for (const auto& pOperand : operands) {
            if (!pOperand->atEnd())
                ticks = std::min(ticks, pOperand->ticks());
        }
        for (std::size_t i = 0; i < operands.size(); ++i) {
            if (operands[i]->atEnd() || operands[i]->ticks() != ticks)
                continue;
            values[i] = operands[i]->take();
            ended += operands[i]->atEnd() ? 1 : 0;
            unknown -= isKnown[i] ? 0 : 1;
            isKnown[i] = true;
        }
        if (unknown == 0)
            visit(ticks, std::span<const double>(values));
    }
}

} // namespace ZARN
