#include "sim/MessageSchedule.h"

#include "app/Numeric.h"

#include <bit>
#include <cmath>

namespace ZARN {

namespace {

constexpr std::uint64_t kStepTicks = kTicksPerSecond / 10;

// The ids of the two lanes differ by 100, those of their words of faults by one.
constexpr std::uint32_t kLaneA = 300;
constexpr std::uint32_t kLaneB = 400;
constexpr std::uint32_t kFaultsA = 1200;
constexpr std::uint32_t kFaultsB = 1201;

void putBigEndian(std::uint32_t value, std::size_t bytes, CardRecord& record)
{
    for (std::size_t i = 0; i < bytes; ++i)
        record.payload[4 + i] = static_cast<std::uint8_t>(value >> (8 * (bytes - 1 - i)));
}

template <typename Integer> std::uint32_t rounded(double value)
{
    return static_cast<std::uint32_t>(saturatingCast<Integer>(std::floor(value + 0.5)));
}

} // namespace

MessageSchedule::MessageSchedule(const Snapshot& snapshot)
{
    addLane({ENode::eLaneA, 0}, kLaneA, kFaultsA, snapshot.lanes[0]);
    addLane({ENode::eLaneB, 0}, kLaneB, kFaultsB, snapshot.lanes[1]);
    addEngine(snapshot.engine);
    addMonitor(snapshot.monitor);
    addElectrical(snapshot.electrical, snapshot.ambient);
    addGps(snapshot.gps);
    addAir(snapshot.air);
    addLamps(snapshot.lamps);
}

/// Slow messages are spread over the steps of their period, so that every step carries about the same number.
void MessageSchedule::add(Sender sender, std::uint32_t id, EType type, ERate rate, const double& value, double perUnit)
{
    const std::uint32_t index = static_cast<std::uint32_t>(mMessages.size());
    mMessages.push_back({id, type, sender.node, sender.kind, 0, &value, perUnit});
    for (std::size_t step = index % rate; step < kRound; step += rate)
        mDue[step].push_back(index);
}

void MessageSchedule::addLane(Sender sender, std::uint32_t base, std::uint32_t faultId, const LaneValues& lane)
{
    const double* const fast[] = {&lane.engineSpeed, &lane.manifoldPressure, &lane.throttle, &lane.boostPressure};
    for (std::uint32_t i = 0; i < std::size(fast); ++i)
        add(sender, base + i, EType::eFloat, e10Hz, *fast[i]);
    const double* const medium[] = {&lane.boostTarget, &lane.ignitionTiming, &lane.injectionTime, &lane.injectionDuty, &lane.lambda};
    for (std::uint32_t i = 0; i < std::size(medium); ++i)
        add(sender, base + 4 + i, EType::eFloat, e2Hz, *medium[i]);
    add(sender, base + 9, EType::eFloat, e5Hz, lane.fuelFlow);
    for (std::uint32_t i = 0; i < lane.egt.size(); ++i)
        add(sender, base + 10 + i, EType::eFloat, e2Hz, lane.egt[i]);
    add(sender, base + 14, EType::eFloat, e1Hz, lane.coolant);
    add(sender, base + 15, EType::eFloat, e1Hz, lane.oilTemperature);
    add(sender, base + 16, EType::eFloat, e2Hz, lane.oilPressure);
    add(sender, base + 17, EType::eFloat, e1Hz, lane.manifoldTemperature);
    add(sender, base + 18, EType::eFloat, e2Hz, lane.fuelPressure);
    add(sender, base + 19, EType::eFloat, e1Hz, lane.ambientPressure);
    add(sender, base + 20, EType::eShort, e1Hz, lane.controlTemperature, 10);
    add(sender, base + 21, EType::eFloat, e1Hz, lane.supplyVoltage);
    add(sender, base + 22, EType::eFloat, e1Hz, lane.injectorVoltage);
    add(sender, base + 23, EType::eFloat, e2Hz, lane.wastegate);
    add(sender, base + 24, EType::eUshort, e2Hz, lane.knock, 100);
    addLaneStates(sender, base, lane);
    add(sender, faultId, EType::eBlong, e2Hz, lane.faults);
}

void MessageSchedule::addLaneStates(Sender sender, std::uint32_t base, const LaneValues& lane)
{
    add(sender, base + 25, EType::eChar, e1Hz, lane.fuelTrim);
    add(sender, base + 26, EType::eUchar, e1Hz, lane.load);
    add(sender, base + 27, EType::eBshort, e1Hz, lane.state);
    add(sender, base + 28, EType::eBshort, e1Hz, lane.warning);
    add(sender, base + 29, EType::eBshort, e1Hz, lane.fuelMap);
    for (std::uint32_t i = 0; i < lane.sensors.size(); ++i)
        add(sender, base + 30 + i, EType::eBshort, e1Hz, lane.sensors[i]);
    add(sender, base + 38, EType::eUlong, e1Hz, lane.seconds);
    add(sender, base + 39, EType::eUshort, e1Hz, lane.triggerErrors);
}

void MessageSchedule::addEngine(const EngineValues& engine)
{
    const Sender sender{ENode::eMonitor, 1};
    const double* const fast[] = {&engine.speed, &engine.propellerSpeed, &engine.manifoldPressure, &engine.power, &engine.relativePower,
                                  &engine.torque};
    for (std::uint32_t i = 0; i < std::size(fast); ++i)
        add(sender, 500 + i, EType::eFloat, e2Hz, *fast[i]);
    const double* const slow[] = {&engine.fuelFlow, &engine.fuelUsed, &engine.highestEgt, &engine.egtSpread, &engine.coolant,
                                  &engine.oilTemperature, &engine.oilPressure, &engine.gearboxTemperature, &engine.intercoolerTemperature};
    for (std::uint32_t i = 0; i < std::size(slow); ++i)
        add(sender, 506 + i, EType::eFloat, e1Hz, *slow[i]);
    add(sender, 515, EType::eBshort, e1Hz, engine.state);
}

void MessageSchedule::addMonitor(const MonitorValues& monitor)
{
    const Sender sender{ENode::eMonitor, 1};
    add(sender, 540, EType::eUlong, e1Hz, monitor.engineSeconds);
    add(sender, 541, EType::eUlong, e1Hz, monitor.starts);
    add(sender, 542, EType::eLong, e1Hz, monitor.secondsSinceStart);
    add(sender, 543, EType::eUlong, e1Hz, monitor.totalFuel);
    add(sender, 544, EType::eFloat, e1Hz, monitor.fuelLeft);
    add(sender, 545, EType::eFloat, e1Hz, monitor.fuelRight);
    add(sender, 546, EType::eChar, e1Hz, monitor.temperature);
    add(sender, 547, EType::eUchar, e1Hz, monitor.cardFree);
    add(sender, 548, EType::eBshort, e1Hz, monitor.recorderState);
}

void MessageSchedule::addElectrical(const ElectricalValues& electrical, const AmbientValues& ambient)
{
    const Sender sender{ENode::eElectrical, 1};
    const double* const floats[] = {&electrical.mainBus, &electrical.essentialBus, &electrical.batteryCurrent, &electrical.batteryTemperature,
                                    &electrical.generatorCurrent[0], &electrical.generatorCurrent[1]};
    for (std::uint32_t i = 0; i < std::size(floats); ++i)
        add(sender, 600 + i, EType::eFloat, e1Hz, *floats[i]);
    const double* const states[] = {&electrical.generatorState[0], &electrical.generatorState[1], &electrical.fuelPump[0],
                                    &electrical.fuelPump[1], &electrical.starter};
    for (std::uint32_t i = 0; i < std::size(states); ++i)
        add(sender, 606 + i, EType::eBshort, e1Hz, *states[i]);
    add(sender, 650, EType::eFloat, e1Hz, ambient.pressure);
    add(sender, 651, EType::eFloat, e1Hz, ambient.temperature);
    add(sender, 652, EType::eFloat, e1Hz, ambient.densityAltitude);
    add(sender, 653, EType::eUchar, e1Hz, ambient.humidity);
}

void MessageSchedule::addGps(const GpsValues& gps)
{
    const Sender sender{ENode::eGps, 2};
    const double* const fast[] = {&gps.latitude, &gps.longitude, &gps.altitude, &gps.groundSpeed, &gps.track};
    for (std::uint32_t i = 0; i < std::size(fast); ++i)
        add(sender, 1036 + i, EType::eFloat, e5Hz, *fast[i]);
    add(sender, 1041, EType::eFloat, e1Hz, gps.verticalSpeed);
    add(sender, 1042, EType::eUlong, e1Hz, gps.utcTime);
    add(sender, 1043, EType::eUlong, e1Hz, gps.utcDate);
    add(sender, 1044, EType::eBshort, e1Hz, gps.fix);
    add(sender, 1045, EType::eUchar, e1Hz, gps.satellites);
}

void MessageSchedule::addAir(const AirValues& air)
{
    const Sender sender{ENode::eAirData, 2};
    add(sender, 700, EType::eFloat, e5Hz, air.indicatedSpeed);
    add(sender, 701, EType::eFloat, e5Hz, air.trueSpeed);
    add(sender, 702, EType::eFloat, e5Hz, air.pressureAltitude);
    add(sender, 703, EType::eFloat, e5Hz, air.vario);
    add(sender, 704, EType::eFloat, e1Hz, air.temperature);
    add(sender, 705, EType::eFloat, e5Hz, air.acceleration);
    add(sender, 706, EType::eUshort, e1Hz, air.qnh);
}

void MessageSchedule::addLamps(const std::array<double, kLamps>& lamps)
{
    for (std::uint32_t i = 0; i < lamps.size(); ++i)
        add({ENode::eMonitor, 1}, 800 + i, EType::eBshort, e2Hz, lamps[i]);
}

void MessageSchedule::encode(const Message& message, CardRecord& record)
{
    const double raw = *message.pValue * message.perUnit;
    record.payload = {static_cast<std::uint8_t>(message.node), static_cast<std::uint8_t>(message.type), 0, message.code, 0, 0, 0, 0};
    switch (message.type) {
    case EType::eFloat: putBigEndian(std::bit_cast<std::uint32_t>(static_cast<float>(raw)), 4, record); break;
    case EType::eLong: putBigEndian(rounded<std::int32_t>(raw), 4, record); break;
    case EType::eUlong:
    case EType::eBlong: putBigEndian(rounded<std::uint32_t>(raw), 4, record); break;
    case EType::eShort: putBigEndian(rounded<std::int16_t>(raw), 2, record); break;
    case EType::eUshort:
    case EType::eBshort: putBigEndian(rounded<std::uint16_t>(raw), 2, record); break;
    case EType::eChar: putBigEndian(rounded<std::int8_t>(raw), 1, record); break;
    case EType::eUchar: putBigEndian(rounded<std::uint8_t>(raw), 1, record); break;
    }
}

const std::vector<CardRecord>& MessageSchedule::records(std::uint64_t step, RandomSource& random)
{
    const std::vector<std::uint32_t>& due = mDue[step % kRound];
    mRecords.resize(due.size());
    // Each message has a place of its own in the step and comes somewhere within it, so times ascend.
    const std::uint32_t place = static_cast<std::uint32_t>(kStepTicks / due.size());
    std::uint64_t ticks = step * kStepTicks;
    for (std::size_t i = 0; i < due.size(); ++i) {
        Message& message = mMessages[due[i]];
        CardRecord& record = mRecords[i];
        encode(message, record);
        ++message.code;
        record.bus = message.kind;
        record.kind = message.kind;
        record.id = message.id;
        record.sequence = mSequence++;
        record.load = static_cast<std::uint16_t>(4 * due.size());
        record.ticks = ticks + random.below(place);
        ticks += place;
    }
    return mRecords;
}

} // namespace ZARN
