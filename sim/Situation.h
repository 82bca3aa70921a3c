#pragma once

#include "sim/Route.h"
#include "sim/Snapshot.h"

namespace ZARN::Sim {

constexpr double kStep = 0.1; ///< seconds that the simulation advances at a time
constexpr double kRadian = 0.017453292519943295;

/// Height of the airfield above the sea, m, and its place in degrees.
constexpr double kFieldElevation = 540;
constexpr double kFieldLatitude = 48.2;
constexpr double kFieldLongitude = 11.05;

/// Counters that outlive a power cycle: seconds, and litres.
struct LogBook {
    double engineSeconds = 4'511'820, controlSeconds = 4'970'400, recordedSeconds = 0, starts = 2113;
    double totalFuel = 18'650, fuelLeft = 44, fuelRight = 41;
};

/// Where the aircraft is and how it moves; before its power is switched on it is parked.
struct Motion {
    RunwayPoint place = kParking;
    double height = 0;    ///< m above the airfield
    double speed = 0;     ///< m/s over ground
    double heading = 350; ///< degrees, 0 <= heading < 360
    double climb = 0;     ///< m/s
    double turnRate = 0;  ///< degrees a second, positive to the right
    double headWind = 0;  ///< the wind's component against the aircraft, m/s
    bool airborne = false;
    Drift lift{0.5, 12}; ///< of the air, m/s
};

/// What goes wrong at this instant; the sensor is that of cylinder 3, at lane B.
struct Incidents {
    bool overboost = false, hot = false, egtSensor = false, generator = false;
};

/// The state of the aircraft.
struct Situation {
    const CyclePlan& plan;
    LogBook& logBook;
    RandomSource random;
    Motion motion{};
    double seconds = 0; ///< since power-up
    Leg leg{};
    double throttle = 0; ///< the lever as it stands, percent
    Incidents incidents{};
    double overheating = 0;    ///< 0 .. 1: how far that of a hot tow has gone
    double runningSeconds = 0; ///< since the engine was started; 0 before
    Drift eastError{0.7, 40}, northError{0.7, 40}, altitudeError{0.4, 60}; ///< of the satellite receiver, m
    /// What both lanes measure alike is right in the first lane's values, which the second takes over.
    Snapshot values{};

    [[nodiscard]] bool isCranking() const { return leg.phase == EPhase::eCranking; }
};

/// Moves the aircraft over one kStep as the leg asks: a point on a plane with a heading, with the accelerations, turns and climbs of a
/// light tow aircraft. Knows no forces; the pilot is assumed to fly the numbers of the leg.
void stepMotion(Situation& now);
/// Whether the leg's end is reached. @param seconds since the leg began.
bool isLegEnded(const Situation& now, double seconds);

/// The standard atmosphere above the airfield, and how the aircraft moves through it.
void stepAir(Situation& now);
/// The engine and the battery before the start, the engine as warm as the plan says.
void restEngine(Situation& now);
/// The engine's physics over one kStep: each quantity follows, with its own lag, what throttle, speed and air ask for.
void stepEngine(Situation& now);
/// What the lanes of the engine control unit make of it, and then the units for monitoring, electrical system and satellites.
void stepUnits(Situation& now);
/// What the monitoring unit concludes: sets the warning lamps, each lane's word of faults and its warning level.
void judgeWarnings(Situation& now);

} // namespace ZARN::Sim
