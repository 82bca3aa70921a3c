#pragma once

#include "sim/Route.h"

#include <array>

namespace ZARN::Sim {

constexpr double kStep = 0.1; ///< seconds that the simulation advances at a time
constexpr double kRadian = 0.017453292519943295;

/// Height of the airfield above the sea, m, and its place in degrees.
constexpr double kFieldElevation = 540;
constexpr double kFieldLatitude = 48.2;
constexpr double kFieldLongitude = 11.05;

/// Counters that outlive a power cycle.
struct LogBook {
    double engineSeconds = 4'511'820;
    double controlSeconds = 4'970'400;
    double recordedSeconds = 0;
    double starts = 2113;
    double totalFuel = 18'650; ///< l
    double fuelLeft = 44, fuelRight = 41;
};

/// Where the aircraft is and how it moves.
struct Motion {
    double east = 0, north = 0; ///< m from the start of the runway
    double height = 0;          ///< m above the airfield
    double speed = 0;           ///< m/s over ground
    double heading = 0;         ///< degrees, 0 <= heading < 360
    double climb = 0;           ///< m/s
    double turnRate = 0;        ///< degrees a second, positive to the right
    double headWind = 0;        ///< the wind's component against the aircraft, m/s
    bool airborne = false;
    std::size_t waypoint = 0;   ///< of the round of the tow
    Drift lift{0.5, 12, kStep}; ///< of the air, m/s
};

/// What the engine does, free of any sensor's error. Temperatures in degrees Celsius, pressures of air in hPa, of liquids in bar.
struct Engine {
    double speed = 0; ///< rpm
    double manifoldPressure = 0, boostPressure = 0, boostTarget = 0;
    double relativePower = 0; ///< 0 .. about 1
    double fuelFlow = 0;      ///< l/h, both lanes
    std::array<double, 4> egt{};
    double coolant = 0, oilTemperature = 0, oilPressure = 0, fuelPressure = 0, manifoldTemperature = 0;
    double overheating = 0; ///< 0 .. 1: how far that of a hot tow has gone
};

/// What goes wrong at this instant.
struct Incidents {
    bool overboost = false;
    bool hot = false;
    bool egtSensor = false; ///< of cylinder 3, at lane B
    bool generator = false;
};

/// The battery and what feeds it: volts, and amperes that are positive when they charge.
struct Electrical {
    double voltage = 12.7;
    double batteryCurrent = 0;
    double generatorCurrent[2] = {0, 0};
};

/// The true state of the aircraft, before any instrument measures it.
struct Situation {
    const CyclePlan& plan;
    LogBook& logBook;
    double seconds = 0; ///< since power-up
    Leg leg{};
    double throttle = 0; ///< the lever as it stands, percent
    Motion motion{};
    Engine engine{};
    Incidents incidents{};
    Electrical electrical{};
    double fuelUsed = 0;       ///< l in this power cycle
    double runningSeconds = 0; ///< since the engine was started; 0 before
    double ambientPressure = 1013;
    double outsideTemperature = 15;
    double pressureAltitude = 0;

    [[nodiscard]] bool isCranking() const { return leg.phase == EPhase::eCranking; }
};

} // namespace ZARN::Sim
