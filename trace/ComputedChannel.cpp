#include "trace/ComputedChannel.h"

#include "trace/ChannelTrace.h"

#include <bit>
#include <new>

namespace ZARN {

namespace {

/// One operand's samples, a run at a time.
class Operand {
public:
    Operand(const RecordData& data, const DecodingContext& context, const ProfileParameter& parameter, CoordinateFilter& filter)
        : mpChannel(channelOf(data, context, parameter)), mTrace({}, parameter, context, mpChannel, ENumber::eMetric, &filter)
    {
        read();
    }

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
    void read()
    {
        mPosition += mRun.size();
        mNext = 0;
        mRun = {};
        if (!mpChannel || mPosition >= mpChannel->entries.size())
            return;
        mRun = mpChannel->entries.run(mPosition, Trace::kRun);
        mTrace.readNumbers(mPosition, std::span(mNumbers).first(mRun.size()));
    }

    std::shared_ptr<const RecordChannel> mpChannel;
    ChannelTrace mTrace;
    std::size_t mPosition = 0;
    std::span<const StoredRecord> mRun;
    std::size_t mNext = 0;
    std::array<double, Trace::kRun> mNumbers;
};

StoredRecord recordOf(uint64_t ticks, double value)
{
    StoredRecord record{};
    record.kind = 2; // of no pseudo-channel
    record.ticks = ticks;
    record.payload[1] = eFloat;
    const auto bits = std::bit_cast<uint32_t>(static_cast<float>(value));
    for (unsigned i = 0; i < sizeof(bits); ++i)
        record.payload[kComputedStartByte + i] = static_cast<uint8_t>(bits >> (24 - 8 * i));
    return record;
}

} // namespace

std::shared_ptr<const RecordChannel> recordedChannel(const RecordData& data, uint32_t identifier)
{
    return {std::shared_ptr<const RecordChannel>(), data.channel(identifier)};
}

std::shared_ptr<const RecordChannel> channelOf(const RecordData& data, const DecodingContext& context, const ProfileParameter& parameter)
{
    if (!parameter.isComputed())
        return recordedChannel(data, parameter.identifier());
    return data.computedChannel(context.model().identity(), parameter.name, [&](RecordEntries& entries, RecordPool& pool) {
        try {
            Formula formula(parameter.expression, context.model(), parameter.name);
            evaluate(formula, data, context, [&](uint64_t ticks, double value) {
                if (!entries.append(recordOf(ticks, value), pool))
                    throw std::bad_alloc();
            });
        } catch (const FormulaError&) {
            // It has no samples; whoever shows formulas says why.
        }
    });
}

void evaluate(Formula& formula, const RecordData& data, const DecodingContext& context, const std::function<void(uint64_t, double)>& visit)
{
    CoordinateFilter filter;
    const DecodingContext metric = context.in(EUnit::eMetric);
    std::vector<std::unique_ptr<Operand>> operands;
    for (const ProfileParameter* pParameter : formula.operands()) {
        operands.push_back(std::make_unique<Operand>(data, metric, *pParameter, filter));
        if (operands.back()->atEnd())
            return;
    }
    std::vector<bool> isKnown(operands.size());
    std::size_t unknown = operands.size(), ended = 0;
    formula.begin();
    while (ended < operands.size()) {
        uint64_t ticks = UINT64_MAX;
        for (const auto& pOperand : operands) {
            if (!pOperand->atEnd())
                ticks = std::min(ticks, pOperand->ticks());
        }
        for (std::size_t i = 0; i < operands.size(); ++i) {
            if (operands[i]->atEnd() || operands[i]->ticks() != ticks)
                continue;
            formula.set(i, operands[i]->take());
            ended += operands[i]->atEnd() ? 1 : 0;
            unknown -= isKnown[i] ? 0 : 1;
            isKnown[i] = true;
        }
        if (unknown == 0)
            visit(ticks, formula.at(recordTime(static_cast<uint32_t>(ticks >> 32), static_cast<uint32_t>(ticks))));
    }
}

} // namespace ZARN
