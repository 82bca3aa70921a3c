#include "sim/MessageSchedule.h"

#include "app/Numeric.h"

#include <bit>
#include <span>
#include <vector>

namespace ZARN::Sim {

namespace {

/// CANaerospace data type codes.
enum EType : std::uint8_t { eFloat = 2, eLong = 3, eUlong = 4, eBlong = 5, eShort = 6, eUshort = 7, eBshort = 8, eChar = 9, eUchar = 10 };
/// Steps of 0.1 s between two messages.
enum ERate : std::uint8_t { e10Hz = 1, e5Hz = 2, e2Hz = 5, e1Hz = 10 };

/// A message, or as a row of the tables a number of them with ascending identifiers.
struct Message {
    std::uint32_t id, count;
    EType type;
    ERate rate;
    double noise = 0;   ///< of the sensors: the most, in the value's unit
    double perUnit = 1; ///< raw units a unit of the value
    std::uint8_t node = 0, kind = 0;
};

/// What a unit sends.
struct Unit {
    std::uint8_t node, kind;
    std::uint32_t base; ///< that the identifiers of its rows count from
    std::span<const Message> rows;
};

constexpr Message kLane[] = {
    {eEngineSpeed, 1, eFloat, e10Hz, 9}, {eManifoldPressure, 1, eFloat, e10Hz, 1.5}, {eThrottle, 1, eFloat, e10Hz, 0.15},
    {eBoostPressure, 1, eFloat, e10Hz, 1.5}, {eBoostTarget, 1, eFloat, e2Hz}, {eIgnitionTiming, 1, eFloat, e2Hz, 0.2},
    {eInjectionTime, 2, eFloat, e2Hz, 0.08}, {eLambda, 1, eFloat, e2Hz, 0.008}, {eFuelFlow, 1, eFloat, e5Hz, 0.15}, {eEgts, 4, eFloat, e2Hz, 0.5},
    {eCoolant, 2, eFloat, e1Hz, 0.08}, {eOilPressure, 1, eFloat, e2Hz, 0.02}, {eManifoldTemperature, 1, eFloat, e1Hz, 0.08},
    {eFuelPressure, 1, eFloat, e2Hz, 0.015}, {eAmbientPressure, 1, eFloat, e1Hz, 0.2}, {eControlTemperature, 1, eShort, e1Hz, 0.1, 10},
    {eSupplyVoltage, 2, eFloat, e1Hz, 0.02}, {eWastegate, 1, eFloat, e2Hz, 0.6}, {eKnock, 1, eUshort, e2Hz, 8, 100}, {eFuelTrim, 1, eChar, e1Hz, 1},
    {eLoad, 1, eUchar, e1Hz}, {eState, 11, eBshort, e1Hz}, {eSeconds, 1, eUlong, e1Hz}, {eTriggerErrors, 1, eUshort, e1Hz}};
constexpr Message kFaults[] = {{0, 1, eBlong, e2Hz}};
constexpr Message kMonitor[] = {
    {eSpeed, 1, eFloat, e2Hz, 6}, {ePropellerSpeed, 1, eFloat, e2Hz, 3}, {eMeanManifoldPressure, 1, eFloat, e2Hz, 1}, {ePower, 3, eFloat, e2Hz, 0.2},
    {eTotalFlow, 1, eFloat, e1Hz, 0.2}, {eFuelUsed, 1, eFloat, e1Hz}, {eHighestEgt, 2, eFloat, e1Hz, 0.4}, {eMeanCoolant, 2, eFloat, e1Hz, 0.05},
    {eLowestOilPressure, 1, eFloat, e1Hz, 0.01}, {eGearboxTemperature, 2, eFloat, e1Hz, 0.05}, {eEngineState, 1, eBshort, e1Hz},
    {eEngineSeconds, 2, eUlong, e1Hz}, {eSecondsSinceStart, 1, eLong, e1Hz}, {eTotalFuel, 1, eUlong, e1Hz}, {eFuelLeft, 2, eFloat, e1Hz},
    {eMonitorTemperature, 1, eChar, e1Hz}, {eCardFree, 1, eUchar, e1Hz}, {eRecorderState, 1, eBshort, e1Hz}};
constexpr Message kElectrical[] = {
    {eMainBus, 2, eFloat, e1Hz, 0.015}, {eBatteryCurrent, 1, eFloat, e1Hz, 0.2}, {eBatteryTemperature, 1, eFloat, e1Hz},
    {eGeneratorCurrents, 2, eFloat, e1Hz, 0.2}, {eGeneratorStates, 5, eBshort, e1Hz}, {ePressure, 2, eFloat, e1Hz, 0.08},
    {eDensityAltitude, 1, eFloat, e1Hz}, {eHumidity, 1, eUchar, e1Hz}};
constexpr Message kGps[] = {
    {eLatitude, 3, eFloat, e5Hz}, {eGroundSpeed, 1, eFloat, e5Hz, 0.3}, {eTrack, 1, eFloat, e5Hz}, {eVerticalSpeed, 1, eFloat, e1Hz, 0.1},
    {eUtcTime, 2, eUlong, e1Hz}, {eFix, 1, eBshort, e1Hz}, {eSatellites, 1, eUchar, e1Hz}};
constexpr Message kAir[] = {
    {eIndicatedSpeed, 2, eFloat, e5Hz, 0.5}, {ePressureAltitude, 1, eFloat, e5Hz, 0.3}, {eVario, 1, eFloat, e5Hz, 0.1},
    {eAirTemperature, 1, eFloat, e1Hz, 0.1}, {eAcceleration, 1, eFloat, e5Hz, 0.04}, {eQnh, 1, eUshort, e1Hz}};
constexpr Message kLamps[] = {{eLamps, 12, eBshort, e2Hz}};
constexpr Unit kUnits[] = {
    {1, 0, eLaneA, kLane}, {1, 0, eFaultWords, kFaults}, {2, 0, eLaneB, kLane}, {2, 0, eFaultWords + 1, kFaults},
    {3, 1, 0, kMonitor}, {4, 1, 0, kElectrical}, {5, 2, 0, kGps}, {6, 2, 0, kAir}, {3, 1, 0, kLamps}};

std::vector<Message> allMessages()
{
    std::vector<Message> messages;
    for (const Unit& unit : kUnits) {
        for (const Message& row : unit.rows) {
            for (std::uint32_t i = 0; i < row.count; ++i)
                messages.push_back({unit.base + row.id + i, 1, row.type, row.rate, row.noise, row.perUnit, unit.node, unit.kind});
        }
    }
    return messages;
}

Payload encode(const Message& message, std::uint8_t code, double value)
{
    const double raw = value * message.perUnit;
    const std::size_t width = message.type < eShort ? 4 : (message.type < eChar ? 2 : 1);
    const auto whole = static_cast<std::uint32_t>(saturatingCast<std::int64_t>(std::floor(raw + 0.5)));
    const std::uint32_t bits = message.type == eFloat ? std::bit_cast<std::uint32_t>(static_cast<float>(raw)) : whole;
    Payload payload{message.node, message.type, 0, code, 0, 0, 0, 0};
    for (std::size_t i = 0; i < width; ++i)
        payload[4 + i] = static_cast<std::uint8_t>(bits >> (8 * (width - 1 - i)));
    return payload;
}

} // namespace

void MessageSchedule::write(std::uint64_t step, const Snapshot& snapshot, RandomSource& random, RecordWriter& writer)
{
    static const std::vector<Message> kMessages = allMessages();
    // Slow messages are spread over the steps of their period, so that every step carries about the same number.
    std::vector<Message> due;
    for (std::size_t i = 0; i < kMessages.size(); ++i) {
        if (i % kMessages[i].rate == step % kMessages[i].rate)
            due.push_back(kMessages[i]);
    }
    // Each message has a place of its own in the step and comes somewhere within it, so times ascend.
    const auto place = static_cast<std::uint32_t>(kStepTicks / due.size());
    const auto load = static_cast<std::uint16_t>(4 * due.size()); // of the bus, in tenths of a percent
    std::uint64_t ticks = step * kStepTicks;
    for (const Message& message : due) {
        double value = snapshot[message.id];
        if (std::abs(value) > message.noise) // what is off has none
            value += random.noise(message.noise);
        const Payload payload = encode(message, mCodes[message.id]++, value);
        writer.putRecord(message.id, {payload, 8, message.kind, message.kind, mSequence++, load, ticks + random.below(place)});
        ticks += place;
    }
}

} // namespace ZARN::Sim
