#include "sim/Systems.h"

#include <algorithm>

namespace ZARN::Sim {

namespace {

constexpr double kLiftOffSpeed = 29; // m/s through the air
constexpr double kFlareHeight = 6;
constexpr double kGlideSlope = 0.09;
constexpr double kAimingPoint = 60; // m beyond the start of the runway
const double kRunwaySine = std::sin(kRunwayHeading * kRadian);
const double kRunwayCosine = std::cos(kRunwayHeading * kRadian);

// The round of a tow: straight out, then a wide left-hand circuit; after the last the round goes on from the second.
constexpr std::array<RunwayPoint, 6> kTowWaypoints{{{2600, 0}, {3600, 2200}, {2000, 4200}, {-1500, 4200}, {-3500, 2000}, {-2500, -900}}};

double wrap(double degrees)
{
    return degrees - 360.0 * std::floor(degrees / 360.0);
}

double approach(double value, double target, double most)
{
    return value + std::clamp(target - value, -most, most);
}

RunwayPoint placeOf(const Motion& motion)
{
    return {motion.east * kRunwaySine + motion.north * kRunwayCosine, motion.north * kRunwaySine - motion.east * kRunwayCosine};
}

/// A point stays within reach of the tightest turn, or the aircraft would circle about it for ever.
bool isNear(const Motion& motion, RunwayPoint target)
{
    const RunwayPoint here = placeOf(motion);
    return std::hypot(target.along - here.along, target.left - here.left) < (motion.airborne ? 500 : 13);
}

double headingTo(const Motion& motion, RunwayPoint target)
{
    const RunwayPoint here = placeOf(motion);
    return wrap(kRunwayHeading - std::atan2(target.left - here.left, target.along - here.along) / kRadian);
}

double wantedClimb(const Motion& motion, const Leg& leg, double lift)
{
    if (leg.phase != EPhase::eFinal)
        return leg.climb + lift;
    if (motion.height < kFlareHeight)
        return -0.9;
    const double onSlope = std::max(0.0, (kAimingPoint - placeOf(motion).along) * kGlideSlope);
    return std::clamp(-motion.speed * kGlideSlope + 0.2 * (onSlope - motion.height), -4.5, 0.5);
}

double wantedHeading(Motion& motion, const Leg& leg)
{
    const double left = placeOf(motion).left;
    switch (leg.steer) {
    case ESteer::eHold: break;
    case ESteer::eRunway:
        return kRunwayHeading + (motion.airborne ? std::clamp(left * 0.3, -45.0, 45.0) : std::clamp(left * 2, -20.0, 20.0));
    case ESteer::eTarget: return headingTo(motion, leg.target);
    case ESteer::eTowCircuit:
        if (isNear(motion, kTowWaypoints[motion.waypoint]))
            motion.waypoint = motion.waypoint + 1 < kTowWaypoints.size() ? motion.waypoint + 1 : 1;
        return headingTo(motion, kTowWaypoints[motion.waypoint]);
    case ESteer::eRightTurn: return motion.heading + 30;
    }
    return motion.heading;
}

void steer(Situation& now)
{
    Motion& motion = now.motion;
    const double most = motion.airborne ? 6 : 25;
    const double hardest = motion.airborne ? 3 : 60; // degrees a second, a second: an aircraft has to bank first
    double wanted = 0;
    if (motion.speed >= 0.2) {
        const double turn = wrap(wantedHeading(motion, now.leg) - motion.heading + 180.0) - 180.0;
        wanted = std::clamp(turn * 0.8, -most, most);
    }
    motion.turnRate = approach(motion.turnRate, wanted, hardest * kStep);
    motion.heading = wrap(motion.heading + motion.turnRate * kStep);
    motion.headWind = now.plan.windSpeed * std::cos((now.plan.windFrom - motion.heading) * kRadian);
}

void accelerate(Motion& motion, const Leg& leg, double throttle)
{
    double most = motion.airborne ? 1.0 : 0.7;
    if (leg.phase == EPhase::eTakeOffRoll)
        most = 1.75 * (throttle / 100) * (1 - 0.35 * motion.speed / kLiftOffSpeed);
    else if (leg.phase == EPhase::eRollOut)
        most = 1.5;
    motion.speed = approach(motion.speed, leg.speed - (motion.airborne ? motion.headWind : 0), most * kStep);
}

void climb(Motion& motion, const Leg& leg, double lift)
{
    if (!motion.airborne) {
        motion.climb = 0;
        return;
    }
    motion.climb = approach(motion.climb, wantedClimb(motion, leg, lift), 0.9 * kStep);
    motion.height += motion.climb * kStep;
    if (motion.height <= 0) {
        motion.height = 0;
        motion.airborne = leg.phase != EPhase::eFinal;
    }
}

} // namespace

Motion parkedMotion()
{
    return {.east = kParking.along * kRunwaySine - kParking.left * kRunwayCosine,
            .north = kParking.along * kRunwayCosine + kParking.left * kRunwaySine,
            .heading = 350};
}

void stepMotion(Situation& now, RandomSource& random)
{
    Motion& motion = now.motion;
    steer(now);
    accelerate(motion, now.leg, now.throttle);
    if (now.leg.phase == EPhase::eTow)
        motion.airborne = true;
    climb(motion, now.leg, motion.lift.step(random));
    motion.east += motion.speed * std::sin(motion.heading * kRadian) * kStep;
    motion.north += motion.speed * std::cos(motion.heading * kRadian) * kStep;
}

bool isLegEnded(const Situation& now, double seconds)
{
    const Leg& leg = now.leg;
    const Motion& motion = now.motion;
    switch (leg.end) {
    case ELegEnd::eTime: return seconds >= leg.limit;
    case ELegEnd::ePoint: return isNear(motion, leg.target);
    case ELegEnd::eClimbedTo: return motion.height >= leg.limit;
    case ELegEnd::eSunkTo: return motion.height <= leg.limit;
    case ELegEnd::eLiftOff: return motion.speed + motion.headWind >= kLiftOffSpeed;
    case ELegEnd::eTouchDown: return !motion.airborne;
    case ELegEnd::eSlowedTo: return motion.speed <= leg.limit;
    }
    return true;
}

} // namespace ZARN::Sim
