#pragma once

#include <QDateTime>

namespace ZARN {

/// A flight found in a cycle, with its tow statistic. Times in seconds since the unit's power-up; altitudes, speeds and
/// quantities in the display units of the profile at the time of loading, distances in metres.
struct RecordFlight {
    QDateTime dateTime;       ///< wall clock of the take-off
    double startTime = 0.0;   ///< 30 s before take-off, never below 0
    double endTime = 0.0;     ///< 30 s after landing
    double takeOffTime = 0.0; ///< when the ground speed confirmed the take-off
    double landingTime = 0.0; ///< when it confirmed the landing
    bool valid = false;       ///< the statistic has been computed
    double minAltitude = 0.0;
    double maxAltitude = 0.0;
    double totalClimb = 0.0;
    double averageClimbRate = 0.0;   ///< per second, from take-off to the highest point
    double averageDescendRate = 0.0; ///< per second, from the highest point to landing
    double maxGroundSpeed = 0.0;
    double fuelA = 0.0;
    double fuelB = 0.0;
    double totalFuel = 0.0;
    double timePer100m = 0.0; ///< seconds a 100 units of climb; infinite or not a number when there was no climb
    double fuelPer100m = 0.0;
    double takeOffDistance = 0.0;    ///< from full throttle to lift-off
    double takeOffDistance15m = 0.0; ///< from full throttle to 15 m above the ground

    // What the recording told. A number that rests on something that was not found says nothing; flightFigure() knows which do.
    bool hasRollStart = false; ///< a position at the first full throttle
    bool hasLiftOff = false;   ///< the ground's altitude, a sample above it and a position there
    bool hasObstacle = false;  ///< the same for 15 m
    bool hasAltitude = false;  ///< altitudes of a receiver with a fix
    bool hasSummit = false;    ///< a sample higher than the first one
    bool hasFuelA = false;     ///< at least two samples of the flow
    bool hasFuelB = false;
};

} // namespace ZARN
