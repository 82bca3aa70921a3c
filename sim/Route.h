#pragma once

#include "sim/CyclePlan.h"

namespace ZARN::Sim {

/// What of the pilot's doings the aircraft and its units depend on; the ground stands for everything without a rule of its own.
enum class EPhase { eGround, eCranking, eTakeOffRoll, eTow, eReturn, eFinal, eRollOut };

/// What ends a leg: its time, its target, a height climbed or sunk to, leaving the ground, touching it, a speed slowed to.
enum class ELegEnd { eTime, ePoint, eClimbedTo, eSunkTo, eLiftOff, eTouchDown, eSlowedTo };

/// How a leg is steered: by its turn alone, along the runway, to its target.
enum class ESteer { eTurn, eRunway, eTarget };

/// A place in metres from the start of the runway: along it in the direction of take-off, and to the left of it.
struct RunwayPoint {
    double along = 0, left = 0;
};

/// One piece of what the pilot does.
struct Leg {
    EPhase phase = EPhase::eGround;
    ELegEnd end = ELegEnd::eTime;
    double limit = 0;    ///< seconds, metres of height or m/s, as the end asks
    double throttle = 0; ///< percent
    ESteer steer = ESteer::eTurn;
    RunwayPoint target{};
    double turn = 0;  ///< degrees a second to the right
    double speed = 0; ///< m/s over ground on the ground, through the air in flight
    double climb = 0; ///< m/s
    bool laneOn[2] = {true, true};
    bool engine = true;
    TowPlan tow{}; ///< that the leg belongs to; one without troubles where it belongs to none
};

constexpr double kRunwayHeading = 260; ///< degrees, in the direction of take-off
constexpr RunwayPoint kParking{-60, -120};

/// The legs of a whole power cycle, in order.
std::vector<Leg> buildRoute(const CyclePlan& plan);

} // namespace ZARN::Sim
