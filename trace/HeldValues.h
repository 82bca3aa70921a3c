#pragma once

#include "trace/ChannelTrace.h"
#include "trace/ComputedChannel.h"

#include <array>

namespace ZARN {

/// The samples of one of several parameters that are walked through together, a run at a time.
class HeldOperand {
public:
    HeldOperand(const RecordData& data, const DecodingContext& context, const ProfileParameter& parameter, CoordinateFilter& filter);

    /// What no record has.
    static constexpr uint64_t kEnd = UINT64_MAX;

    /// The time of the sample; kEnd behind the last.
    [[nodiscard]] uint64_t ticks() const { return mTicks; }
    /// The value of the sample, which is left.
    double take()
    {
        const double number = mNumbers[mNext++];
        if (mNext == mRun.size())
            read();
        else
            mTicks = mRun[mNext].ticks;
        return number;
    }

private:
    void read();

    std::shared_ptr<const RecordChannel> mpChannel;
    ChannelTrace mTrace;
    std::size_t mPosition = 0;
    std::span<const StoredRecord> mRun;
    std::size_t mNext = 0;
    uint64_t mTicks = kEnd;
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
        if (operands.back()->ticks() == HeldOperand::kEnd)
            return;
    }
    std::vector<double> values(operands.size());
    std::vector<bool> isKnown(operands.size());
    std::size_t unknown = operands.size();
    while (true) {
        uint64_t ticks = HeldOperand::kEnd;
        for (const auto& pOperand : operands)
            ticks = std::min(ticks, pOperand->ticks());
        if (ticks == HeldOperand::kEnd)
            return;
        for (std::size_t i = 0; i < operands.size(); ++i) {
            if (operands[i]->ticks() != ticks)
                continue;
            values[i] = operands[i]->take();
            if (unknown == 0)
                continue;
            unknown -= isKnown[i] ? 0 : 1;
            isKnown[i] = true;
        }
        if (unknown == 0)
            visit(ticks, std::span<const double>(values));
    }
}

} // namespace ZARN
