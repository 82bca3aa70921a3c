#pragma once

#include "sim/RandomSource.h"

#include <QDateTime>

#include <vector>

namespace ZARN::Sim {

/// What happens on one tow with a glider.
struct TowPlan {
    double releaseHeight = 800; ///< m above the airfield
    double climb = 3;           ///< m/s, the mean of the climb
    double wait = 240;          ///< s at the start before the tow
    bool overboost = false;     ///< the boost control overshoots at take-off
    bool hot = false;           ///< coolant and one cylinder grow too hot in the climb
    bool sensorFault = false;   ///< an exhaust gas sensor drops out now and then after the release
};

/// What happens between switching the aircraft's power on and off.
struct CyclePlan {
    QDateTime powerUp{};         ///< UTC
    std::uint64_t seed = 0;      ///< of everything random within this cycle
    double windSpeed = 3;        ///< m/s
    double windFrom = 250;       ///< degrees
    double temperature = 18;     ///< degrees Celsius at the airfield
    double qnh = 1018;           ///< hPa
    double warmUp = 360;         ///< s
    double groundRun = 0;        ///< s at power on the ground; 0: none
    double engineWarmth = 0;     ///< 0 cold ... 1 just stopped
    bool clock = true;           ///< false: no satellites are received, so no file gets a date
    bool generatorFails = false; ///< generator 1 stops some time after the start
    std::vector<TowPlan> tows{};
};

/// Plans one power cycle after the other: a ground run, a flight cycle of two tows and a short run without a clock, then
/// flight cycles of three to six tows without end. The same seed gives the same plans.
class CyclePlanner {
public:
    explicit CyclePlanner(std::uint64_t seed) : mRandom(seed) {}

    /// How many cycles the story has before the flight cycles that only fill the card.
    static constexpr int kStoryCycles = 3;

    /// The next plan. @param previousSeconds how long the cycle before it lasted; 0 for the first.
    CyclePlan next(double previousSeconds);

private:
    void advanceClock(double previousSeconds);

    RandomSource mRandom;
    QDateTime mClock;
    int mCycle = 0;
};

} // namespace ZARN::Sim
