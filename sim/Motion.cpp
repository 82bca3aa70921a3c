#include "sim/Situation.h"

#include <algorithm>

namespace ZARN::Sim {

namespace {

constexpr double kLiftOffSpeed = 29; // m/s through the air
constexpr double kFlareHeight = 6;
constexpr double kGlideSlope = 0.09;
constexpr double kAimingPoint = 60; // m beyond the start of the runway

double wrap(double degrees)
{
    return degrees - 360.0 * std::floor(degrees / 360.0);
}

double approach(double value, double target, double most)
{
    return value + std::clamp(target - value, -most, most);
}

/// A point stays within reach of the tightest turn, or the aircraft would circle about it for ever.
bool isNear(const Motion& motion, RunwayPoint target)
{
    return std::hypot(target.along - motion.place.along, target.left - motion.place.left) < (motion.airborne ? 500 : 13);
}

double wantedClimb(const Motion& motion, const Leg& leg)
{
    if (leg.phase != EPhase::eFinal)
        return leg.climb + motion.lift.value;
    if (motion.height < kFlareHeight)
        return -0.9;
    const double onSlope = std::max(0.0, (kAimingPoint - motion.place.along) * kGlideSlope);
    return std::clamp(-motion.speed * kGlideSlope + 0.2 * (onSlope - motion.height), -4.5, 0.5);
}

/// Degrees that the heading is to change by.
double wantedTurn(const Motion& motion, const Leg& leg)
{
    const RunwayPoint here = motion.place;
    const double toRunway = motion.airborne ? std::clamp(here.left * 0.3, -45.0, 45.0) : std::clamp(here.left * 2, -20.0, 20.0);
    const double toTarget = -std::atan2(leg.target.left - here.left, leg.target.along - here.along) / kRadian;
    return wrap(kRunwayHeading + (leg.steer == ESteer::eTarget ? toTarget : toRunway) - motion.heading + 180.0) - 180.0;
}

void steer(Situation& now)
{
    Motion& motion = now.motion;
    const double most = motion.airborne ? 6 : 25;
    const double hardest = motion.airborne ? 3 : 60; // degrees a second, a second: an aircraft has to bank first
    double wanted = now.leg.turn;
    if (now.leg.steer != ESteer::eTurn && motion.speed >= 0.2)
        wanted = std::clamp(wantedTurn(motion, now.leg) * 0.8, -most, most);
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

void climb(Motion& motion, const Leg& leg)
{
    if (!motion.airborne) {
        motion.climb = 0;
        return;
    }
    motion.climb = approach(motion.climb, wantedClimb(motion, leg), 0.9 * kStep);
    motion.height += motion.climb * kStep;
    if (motion.height <= 0) {
        motion.height = 0;
        motion.airborne = leg.phase != EPhase::eFinal;
    }
}

} // namespace

void stepMotion(Situation& now)
{
    Motion& motion = now.motion;
    steer(now);
    accelerate(motion, now.leg, now.throttle);
    if (now.leg.phase == EPhase::eTow)
        motion.airborne = true;
    motion.lift.step(kStep, now.random);
    climb(motion, now.leg);
    const double course = (motion.heading - kRunwayHeading) * kRadian;
    motion.place.along += motion.speed * std::cos(course) * kStep;
    motion.place.left -= motion.speed * std::sin(course) * kStep;
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
