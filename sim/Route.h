#pragma once

#include "sim/CyclePlan.h"

#include <vector>

namespace ZARN {

/// The pilot's view of where a power cycle stands.
enum class EPhase {
    ePowerUp, eCranking, eWarmUp, eTaxi, eLaneCheck, eGroundRun, eLineUp, eTakeOffRoll, eTow, eRelease, eDescent, ePattern, eFinal,
    eRollOut, eCoolDown, eShutdown
};

/// What ends a leg: its time, its target, a height climbed or sunk to, leaving the ground, touching it, a speed slowed to.
enum class ELegEnd { eTime, ePoint, eClimbedTo, eSunkTo, eLiftOff, eTouchDown, eSlowedTo };

/// How a leg is steered: not at all, along the runway, to its target, round the waypoints of the tow, by a steady right turn.
enum class ESteer { eHold, eRunway, eTarget, eTowCircuit, eRightTurn };

/// A place in metres from the start of the runway: along it in the direction of take-off, and to the left of it.
struct RunwayPoint {
    double along = 0;
    double left = 0;
};

/// One piece of what the pilot does.
struct Leg {
    EPhase phase = EPhase::ePowerUp;
    ELegEnd end = ELegEnd::eTime;
    double limit = 0;    ///< seconds, metres of height or m/s, as the end asks
    double throttle = 0; ///< percent
    ESteer steer = ESteer::eHold;
    RunwayPoint target;
    double speed = 0; ///< m/s over ground on the ground, through the air in flight
    double climb = 0; ///< m/s
    bool laneOn[2] = {true, true};
    bool engine = true;
    int tow = -1; ///< index of the tow that this leg belongs to; -1: none
};

/// The runway's direction of take-off in degrees.
constexpr double kRunwayHeading = 260;
constexpr RunwayPoint kParking{-60, -120};

/// The legs of a whole power cycle, in order.
std::vector<Leg> buildRoute(const CyclePlan& plan);

} // namespace ZARN
