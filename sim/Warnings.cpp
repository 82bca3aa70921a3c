#include "sim/Situation.h"

#include <algorithm>

namespace ZARN::Sim {

namespace {

constexpr std::uint32_t kInfoBits = 0x7F; // bits 0 to 6 of a word of faults only inform
constexpr double kYellow = 1;
constexpr double kRed = 2;

void judgeLamps(const Situation& now, Snapshot& values)
{
    double* const lamps = &values[eLamps];
    /// Of a value that must not grow too large; one that must not grow too small is judged by its negative.
    const auto judge = [](double value, double warning, double limit) { return value >= limit ? kRed : (value >= warning ? kYellow : 0); };
    const bool running = now.leg.engine;
    // The starter pulls the voltage down; the unit does not look while it turns and shortly after.
    const bool starting = now.isCranking() || (running && now.runningSeconds < 5);
    lamps[eCoolantLamp] = judge(values[eMeanCoolant], 110, 120);
    lamps[eOilTemperatureLamp] = judge(values[eMeanOilTemperature], 120, 130);
    lamps[eEgtLamp] = judge(values[eHighestEgt], 920, 950);
    lamps[eBoostLamp] = judge(values[eMeanManifoldPressure], 1500, 1560);
    lamps[eOilPressureLamp] = judge(-values[eLowestOilPressure], -1.5, -0.8);
    lamps[eVoltageLamp] = starting ? 0 : judge(-values[eMainBus], -12.2, -11.5);
    lamps[eReserveLamp] = judge(-std::min(values[eFuelLeft], values[eFuelRight]), -15, -8);
    lamps[eFuelPressureLamp] = running ? judge(-values.lane(0)[eFuelPressure], -2.8, -2.5) : 0;
    lamps[eGeneratorLamp] = now.incidents.generator ? kYellow : 0;
    for (const std::size_t lane : {0, 1}) {
        const double state = values.lane(lane)[eState];
        lamps[eLampA + lane] = state == kOff ? kRed : (state == kDegraded ? kYellow : 0);
    }
    // The master warning repeats the lamps that tell of something while the engine runs.
    lamps[eMaster] = std::max({lamps[eCoolantLamp], lamps[eOilTemperatureLamp], lamps[eEgtLamp], lamps[eBoostLamp], lamps[eGeneratorLamp],
                               lamps[eFuelPressureLamp]});
}

void judgeLane(const Situation& now, std::size_t lane, Snapshot& values)
{
    double* const own = values.lane(lane);
    const double* const lamps = &values[eLamps];
    const bool running = now.leg.engine;
    const bool generator = now.incidents.generator;
    // In the order of the bits as the profile names them.
    const bool faults[] = {
        own[eState] == kSelfTest,                                          // self test
        !now.leg.laneOn[0] || !now.leg.laneOn[1],                          // lane check
        !running,                                                          // engine stopped
        running && own[eCoolant] < 60,                                     // warm-up
        running && now.throttle > 92,                                      // take-off power
        !running || generator,                                             // battery supply
        values[eFix] < 1,                                                  // time not set
        !now.leg.laneOn[1 - lane],                                         // other lane off
        lamps[eCoolantLamp] >= kYellow, lamps[eCoolantLamp] >= kRed,       // coolant: high, limit
        lamps[eEgtLamp] >= kYellow, lamps[eEgtLamp] >= kRed,               // exhaust gas: high, limit
        now.runningSeconds > 3 && running && lamps[eOilPressureLamp] >= kRed, // a standing engine has no oil pressure; that is no fault
        lamps[eOilTemperatureLamp] >= kYellow,                             // oil hot
        lamps[eBoostLamp] >= kYellow, lamps[eBoostLamp] >= kRed,           // overboost, boost limit
        running && lamps[eFuelPressureLamp] >= kRed,                       // fuel pressure low
        lamps[eVoltageLamp] >= kYellow,                                    // supply voltage low
        generator, false, false, false, own[eSensorEgt3] > 0};             // generator failed; bit 22: sensor
    std::uint32_t word = 0;
    for (std::size_t bit = 0; bit < std::size(faults); ++bit)
        word |= static_cast<std::uint32_t>(faults[bit]) << bit;
    values[eFaultWords + lane] = word;
    // Levels: none, info, warning, fault.
    const bool red = std::max({lamps[eCoolantLamp], lamps[eEgtLamp], lamps[eBoostLamp]}) >= kRed || generator;
    own[eWarning] = red ? 3 : ((word & ~kInfoBits) != 0 ? 2 : (word != 0 ? 1 : 0));
}

} // namespace

void judgeWarnings(Situation& now)
{
    judgeLamps(now, now.values);
    judgeLane(now, 0, now.values);
    judgeLane(now, 1, now.values);
}

} // namespace ZARN::Sim
