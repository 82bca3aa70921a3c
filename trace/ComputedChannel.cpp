#include "trace/ComputedChannel.h"

#include "trace/HeldValues.h"

#include <bit>
#include <new>

namespace ZARN {

namespace {

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

template <typename Visitor> void forEachValue(Formula& formula, const RecordData& data, const DecodingContext& context, Visitor visit)
{
    formula.begin();
    const bool readsTime = formula.readsTime();
    forEachHeld(formula.operands(), data, context.in(EUnit::eMetric), [&](uint64_t ticks, std::span<const double> values) {
        for (std::size_t i = 0; i < values.size(); ++i)
            formula.set(i, values[i]);
        visit(ticks, formula.at(readsTime ? recordTime(static_cast<uint32_t>(ticks >> 32), static_cast<uint32_t>(ticks)) : 0.0));
    });
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
            forEachValue(formula, data, context, [&](uint64_t ticks, double value) {
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
    forEachValue(formula, data, context, visit);
}

} // namespace ZARN
