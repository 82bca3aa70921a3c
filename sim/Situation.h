#pragma once

#include "sim/Airframe.h"
#include "sim/EngineModel.h"

namespace ZARN {

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

/// What goes wrong at this instant.
struct Incidents {
    bool overboost = false;
    bool hot = false;
    bool egtSensor = false; ///< of cylinder 3, at lane B
    bool generator = false;
};

/// The battery and what feeds it: volts, and amperes that are positive when they charge.
struct ElectricalState {
    double voltage = 12.7;
    double batteryCurrent = 0;
    double generatorCurrent[2] = {0, 0};
};

/// The true state of the aircraft, before any instrument measures it.
struct Situation {
    double seconds = 0; ///< since power-up
    Leg leg;
    double throttle = 0; ///< the lever as it stands, percent
    double headWind = 0; ///< m/s
    Motion motion;
    EngineCondition engine;
    Incidents incidents;
    ElectricalState electrical;
    LogBook logBook;
    double fuelUsed = 0;          ///< l in this power cycle
    double secondsSinceStart = 0; ///< of the engine; 0 before
    double ambientPressure = 1013;
    double outsideTemperature = 15;
    double pressureAltitude = 0;
};

} // namespace ZARN
