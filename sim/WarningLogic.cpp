#include "sim/WarningLogic.h"

#include <algorithm>
#include <cstdint>

namespace ZARN {

namespace {

// The bits of a lane's word of faults, as the profile names them.
enum class EFault : unsigned {
    eSelfTest = 0, eLaneCheck = 1, eEngineStopped = 2, eWarmUp = 3, eTakeOffPower = 4, eBatterySupply = 5, eTimeNotSet = 6,
    eOtherLaneOff = 7, eCoolantHigh = 8, eCoolantLimit = 9, eEgtHigh = 10, eEgtLimit = 11, eOilPressureLow = 12, eOilHot = 13,
    eOverboost = 14, eBoostLimit = 15, eFuelPressureLow = 16, eVoltageLow = 17, eGenerator = 18, eEgt3Sensor = 22
};

constexpr std::uint32_t kInfoBits = 0x7F; // bits 0 to 6 only inform
constexpr double kYellow = 1;
constexpr double kRed = 2;

double& lampOf(Snapshot& snapshot, ELamp lamp)
{
    return snapshot.lamps[static_cast<std::size_t>(lamp)];
}

double lampOf(const Snapshot& snapshot, ELamp lamp)
{
    return snapshot.lamps[static_cast<std::size_t>(lamp)];
}

/// Collects the bits of a word of faults.
class FaultWord {
public:
    void set(EFault fault, bool on)
    {
        if (on)
            mBits |= 1U << static_cast<unsigned>(fault);
    }
    [[nodiscard]] std::uint32_t bits() const { return mBits; }

private:
    std::uint32_t mBits = 0;
};

double laneLamp(const LaneValues& lane)
{
    if (lane.state == static_cast<double>(static_cast<int>(ELaneState::eOff)))
        return kRed;
    return lane.state == static_cast<double>(static_cast<int>(ELaneState::eDegraded)) ? kYellow : 0;
}

} // namespace

double WarningLogic::high(ELamp lamp, double value, Band band, const Snapshot& snapshot) const
{
    const double lit = lampOf(snapshot, lamp);
    if (value >= band.limit - (lit >= kRed ? band.hysteresis : 0))
        return kRed;
    return value >= band.warning - (lit >= kYellow ? band.hysteresis : 0) ? kYellow : 0;
}

void WarningLogic::judge(const Situation& situation, Snapshot& snapshot)
{
    judgeLamps(situation, snapshot);
    for (std::size_t lane = 0; lane < snapshot.lanes.size(); ++lane)
        judgeLane(situation, lane, snapshot);
    judgeMaster(snapshot);
}

void WarningLogic::judgeLamps(const Situation& situation, Snapshot& snapshot) const
{
    const EngineValues& engine = snapshot.engine;
    const auto set = [&](ELamp lamp, double value, Band band) { lampOf(snapshot, lamp) = high(lamp, value, band, snapshot); };
    set(ELamp::eCoolant, engine.coolant, {110, 120, 1.5});
    set(ELamp::eOilTemperature, engine.oilTemperature, {120, 130, 1.5});
    set(ELamp::eEgt, engine.highestEgt, {920, 950, 8});
    set(ELamp::eBoost, engine.manifoldPressure, {1500, 1560, 12});
    // Values that must not grow too small are judged by their negative.
    set(ELamp::eOilPressure, -engine.oilPressure, {-1.5, -0.8, 0.08});
    // The starter pulls the voltage down; the unit does not look while it turns and shortly after.
    const bool starting = situation.leg.phase == EPhase::eCranking || (situation.leg.engine && situation.secondsSinceStart < 5);
    set(ELamp::eVoltage, starting ? -12.6 : -snapshot.electrical.mainBus, {-12.2, -11.5, 0.15});
    set(ELamp::eFuelReserve, -std::min(snapshot.monitor.fuelLeft, snapshot.monitor.fuelRight), {-15, -8, 0.5});
    const double fuelPressure = situation.leg.engine ? std::min(snapshot.lanes[0].fuelPressure, snapshot.lanes[1].fuelPressure) : 3;
    set(ELamp::eFuelPressure, -fuelPressure, {-2.8, -2.5, 0.05});
    lampOf(snapshot, ELamp::eGenerator) = situation.incidents.generator ? kYellow : 0;
    lampOf(snapshot, ELamp::eLaneA) = laneLamp(snapshot.lanes[0]);
    lampOf(snapshot, ELamp::eLaneB) = laneLamp(snapshot.lanes[1]);
}

void WarningLogic::judgeLane(const Situation& situation, std::size_t lane, Snapshot& snapshot) const
{
    LaneValues& values = snapshot.lanes[lane];
    const auto lit = [&](ELamp lamp, double level) { return lampOf(snapshot, lamp) >= level; };
    const bool running = situation.leg.engine;
    FaultWord word;
    word.set(EFault::eSelfTest, values.state == static_cast<double>(static_cast<int>(ELaneState::eSelfTest)));
    word.set(EFault::eLaneCheck, !situation.leg.laneOn[0] || !situation.leg.laneOn[1]);
    word.set(EFault::eEngineStopped, !running);
    word.set(EFault::eWarmUp, running && values.coolant < 60);
    word.set(EFault::eTakeOffPower, running && situation.throttle > 92);
    word.set(EFault::eBatterySupply, !running || situation.incidents.generator);
    word.set(EFault::eTimeNotSet, snapshot.gps.fix < 1);
    word.set(EFault::eOtherLaneOff, !situation.leg.laneOn[1 - lane]);
    word.set(EFault::eCoolantHigh, lit(ELamp::eCoolant, kYellow));
    word.set(EFault::eCoolantLimit, lit(ELamp::eCoolant, kRed));
    word.set(EFault::eEgtHigh, lit(ELamp::eEgt, kYellow));
    word.set(EFault::eEgtLimit, lit(ELamp::eEgt, kRed));
    // A standing engine has no oil pressure; that is no fault.
    word.set(EFault::eOilPressureLow, situation.secondsSinceStart > 3 && running && lit(ELamp::eOilPressure, kRed));
    word.set(EFault::eOilHot, lit(ELamp::eOilTemperature, kYellow));
    word.set(EFault::eOverboost, lit(ELamp::eBoost, kYellow));
    word.set(EFault::eBoostLimit, lit(ELamp::eBoost, kRed));
    word.set(EFault::eFuelPressureLow, running && lit(ELamp::eFuelPressure, kRed));
    word.set(EFault::eVoltageLow, lit(ELamp::eVoltage, kYellow));
    word.set(EFault::eGenerator, situation.incidents.generator);
    word.set(EFault::eEgt3Sensor, values.sensors[static_cast<std::size_t>(ESensor::eEgt3)] > 0);
    values.faults = word.bits();
    // Levels: none, info, warning, fault.
    const bool red = lit(ELamp::eCoolant, kRed) || lit(ELamp::eEgt, kRed) || lit(ELamp::eBoost, kRed) || situation.incidents.generator;
    values.warning = red ? 3 : ((word.bits() & ~kInfoBits) != 0 ? 2 : (word.bits() != 0 ? 1 : 0));
}

/// The master warning repeats the lamps that tell of something while the engine runs.
void WarningLogic::judgeMaster(Snapshot& snapshot)
{
    double most = 0;
    for (const ELamp lamp : {ELamp::eCoolant, ELamp::eOilTemperature, ELamp::eEgt, ELamp::eBoost, ELamp::eGenerator, ELamp::eFuelPressure})
        most = std::max(most, lampOf(snapshot, lamp));
    lampOf(snapshot, ELamp::eMaster) = most;
}

} // namespace ZARN
