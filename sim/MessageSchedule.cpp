#include "sim/MessageSchedule.h"

#include "app/Numeric.h"

#include <bit>

namespace ZARN::Sim {

// Identifiers of a lane count from its first.
const MessageSchedule::Group MessageSchedule::kLane[] = {
    {eEngineSpeed, 4, eFloat, e10Hz}, {eBoostTarget, 5, eFloat, e2Hz}, {eFuelFlow, 1, eFloat, e5Hz}, {eEgts, 4, eFloat, e2Hz},
    {eCoolant, 2, eFloat, e1Hz}, {eOilPressure, 1, eFloat, e2Hz}, {eManifoldTemperature, 1, eFloat, e1Hz}, {eFuelPressure, 1, eFloat, e2Hz},
    {eAmbientPressure, 1, eFloat, e1Hz}, {eControlTemperature, 1, eShort, e1Hz, 10}, {eSupplyVoltage, 2, eFloat, e1Hz},
    {eWastegate, 1, eFloat, e2Hz}, {eKnock, 1, eUshort, e2Hz, 100}, {eFuelTrim, 1, eChar, e1Hz}, {eLoad, 1, eUchar, e1Hz},
    {eState, 11, eBshort, e1Hz}, {eSeconds, 1, eUlong, e1Hz}, {eTriggerErrors, 1, eUshort, e1Hz}};
const MessageSchedule::Group MessageSchedule::kMonitor[] = {
    {eSpeed, 6, eFloat, e2Hz}, {eTotalFlow, 9, eFloat, e1Hz}, {eEngineState, 1, eBshort, e1Hz}, {eEngineSeconds, 2, eUlong, e1Hz},
    {eSecondsSinceStart, 1, eLong, e1Hz}, {eTotalFuel, 1, eUlong, e1Hz}, {eFuelLeft, 2, eFloat, e1Hz}, {eMonitorTemperature, 1, eChar, e1Hz},
    {eCardFree, 1, eUchar, e1Hz}, {eRecorderState, 1, eBshort, e1Hz}};
const MessageSchedule::Group MessageSchedule::kElectrical[] = {
    {eMainBus, 6, eFloat, e1Hz}, {eGeneratorStates, 5, eBshort, e1Hz}, {ePressure, 3, eFloat, e1Hz}, {eHumidity, 1, eUchar, e1Hz}};
const MessageSchedule::Group MessageSchedule::kGps[] = {
    {eLatitude, 5, eFloat, e5Hz}, {eVerticalSpeed, 1, eFloat, e1Hz}, {eUtcTime, 2, eUlong, e1Hz}, {eFix, 1, eBshort, e1Hz}, {eSatellites, 1, eUchar, e1Hz}};
const MessageSchedule::Group MessageSchedule::kAir[] = {
    {eIndicatedSpeed, 4, eFloat, e5Hz}, {eAirTemperature, 1, eFloat, e1Hz}, {eAcceleration, 1, eFloat, e5Hz}, {eQnh, 1, eUshort, e1Hz}};
const MessageSchedule::Group MessageSchedule::kLamps[] = {{eLamps, 12, eBshort, e2Hz}};

MessageSchedule::MessageSchedule()
{
    add(1, 0, kLane, eLaneA);
    add(1, 0, {eFaultWords, 1, eBlong, e2Hz});
    add(2, 0, kLane, eLaneB);
    add(2, 0, {eFaultWords + 1, 1, eBlong, e2Hz});
    add(3, 1, kMonitor);
    add(4, 1, kElectrical);
    add(5, 2, kGps);
    add(6, 2, kAir);
    add(3, 1, kLamps);
}

template <std::size_t Count>
void MessageSchedule::add(std::uint8_t node, std::uint8_t kind, const Group (&groups)[Count], std::uint32_t base)
{
    for (Group group : groups) {
        group.first += base;
        add(node, kind, group);
    }
}

/// Slow messages are spread over the steps of their period, so that every step carries about the same number.
void MessageSchedule::add(std::uint8_t node, std::uint8_t kind, const Group& group)
{
    for (std::uint32_t id = group.first; id < group.first + group.count; ++id) {
        const auto index = static_cast<std::uint32_t>(mMessages.size());
        mMessages.push_back({id, group.type, node, kind, 0, group.perUnit});
        for (std::size_t step = index % group.rate; step < kRound; step += group.rate)
            mDue[step].push_back(index);
    }
}

Payload MessageSchedule::encode(const Message& message, double value)
{
    const double raw = value * message.perUnit;
    const std::size_t width = message.type < eShort ? 4 : (message.type < eChar ? 2 : 1);
    const auto whole = static_cast<std::uint32_t>(saturatingCast<std::int64_t>(std::floor(raw + 0.5)));
    const std::uint32_t bits = message.type == eFloat ? std::bit_cast<std::uint32_t>(static_cast<float>(raw)) : whole;
    Payload payload{message.node, message.type, 0, message.code, 0, 0, 0, 0};
    for (std::size_t i = 0; i < width; ++i)
        payload[4 + i] = static_cast<std::uint8_t>(bits >> (8 * (width - 1 - i)));
    return payload;
}

void MessageSchedule::write(std::uint64_t step, const Snapshot& snapshot, RandomSource& random, RecordWriter& writer)
{
    const std::vector<std::uint32_t>& due = mDue[step % kRound];
    // Each message has a place of its own in the step and comes somewhere within it, so times ascend.
    const auto place = static_cast<std::uint32_t>(kStepTicks / due.size());
    const auto load = static_cast<std::uint16_t>(4 * due.size()); // of the bus, in tenths of a percent
    std::uint64_t ticks = step * kStepTicks;
    for (const std::uint32_t index : due) {
        Message& message = mMessages[index];
        const Payload payload = encode(message, snapshot[message.id]);
        ++message.code;
        writer.putRecord(message.id, {payload, 8, message.kind, message.kind, mSequence++, load, ticks + random.below(place)});
        ticks += place;
    }
}

} // namespace ZARN::Sim
