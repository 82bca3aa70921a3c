#include "sim/Airframe.h"

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

} // namespace

Airframe::Airframe(const CyclePlan& plan) : mWindSpeed(plan.windSpeed), mWindFrom(plan.windFrom)
{
    mMotion.east = kParking.along * kRunwaySine - kParking.left * kRunwayCosine;
    mMotion.north = kParking.along * kRunwayCosine + kParking.left * kRunwaySine;
    mMotion.heading = 350;
}

double Airframe::headWind() const
{
    return mWindSpeed * std::cos((mWindFrom - mMotion.heading) * kRadian);
}

RunwayPoint Airframe::place() const
{
    return {mMotion.east * kRunwaySine + mMotion.north * kRunwayCosine, mMotion.north * kRunwaySine - mMotion.east * kRunwayCosine};
}

/// A point stays within reach of the tightest turn, or the aircraft would circle about it for ever.
bool Airframe::isNear(RunwayPoint target) const
{
    const RunwayPoint here = place();
    return std::hypot(target.along - here.along, target.left - here.left) < (mMotion.airborne ? 500 : 13);
}

double Airframe::headingTo(RunwayPoint target) const
{
    const RunwayPoint here = place();
    return wrap(kRunwayHeading - std::atan2(target.left - here.left, target.along - here.along) / kRadian);
}

double Airframe::wantedHeading(const Leg& leg)
{
    const bool airborne = mMotion.airborne;
    switch (leg.steer) {
    case ESteer::eHold: break;
    case ESteer::eRunway:
        return kRunwayHeading + (airborne ? std::clamp(place().left * 0.3, -45.0, 45.0) : std::clamp(place().left * 2, -20.0, 20.0));
    case ESteer::eTarget: return headingTo(leg.target);
    case ESteer::eTowCircuit:
        if (isNear(kTowWaypoints[mWaypoint]))
            mWaypoint = mWaypoint + 1 < kTowWaypoints.size() ? mWaypoint + 1 : 1;
        return headingTo(kTowWaypoints[mWaypoint]);
    case ESteer::eRightTurn: return mMotion.heading + 30;
    }
    return mMotion.heading;
}

void Airframe::steer(const Leg& leg)
{
    const double most = mMotion.airborne ? 6 : 25;
    const double hardest = mMotion.airborne ? 3 : 60; // degrees a second, a second: an aircraft has to bank first
    double wanted = 0;
    if (mMotion.speed >= 0.2) {
        const double turn = wrap(wantedHeading(leg) - mMotion.heading + 180.0) - 180.0;
        wanted = std::clamp(turn * 0.8, -most, most);
    }
    mMotion.turnRate = approach(mMotion.turnRate, wanted, hardest * kStep);
    mMotion.heading = wrap(mMotion.heading + mMotion.turnRate * kStep);
}

void Airframe::accelerate(const Leg& leg, double throttle)
{
    double most = mMotion.airborne ? 1.0 : 0.7;
    if (leg.phase == EPhase::eTakeOffRoll)
        most = 1.75 * (throttle / 100) * (1 - 0.35 * mMotion.speed / kLiftOffSpeed);
    else if (leg.phase == EPhase::eRollOut)
        most = 1.5;
    mMotion.speed = approach(mMotion.speed, leg.speed - (mMotion.airborne ? headWind() : 0), most * kStep);
}

double Airframe::wantedClimb(const Leg& leg, double lift) const
{
    if (leg.phase != EPhase::eFinal)
        return leg.climb + lift;
    if (mMotion.height < kFlareHeight)
        return -0.9;
    const double onSlope = std::max(0.0, (kAimingPoint - place().along) * kGlideSlope);
    return std::clamp(-mMotion.speed * kGlideSlope + 0.2 * (onSlope - mMotion.height), -4.5, 0.5);
}

void Airframe::climb(const Leg& leg, double lift)
{
    if (!mMotion.airborne) {
        mMotion.climb = 0;
        return;
    }
    mMotion.climb = approach(mMotion.climb, wantedClimb(leg, lift), 0.9 * kStep);
    mMotion.height += mMotion.climb * kStep;
    if (mMotion.height <= 0) {
        mMotion.height = 0;
        mMotion.airborne = leg.phase != EPhase::eFinal;
    }
}

void Airframe::step(const Leg& leg, double throttle, RandomSource& random)
{
    steer(leg);
    accelerate(leg, throttle);
    if (leg.phase == EPhase::eTow)
        mMotion.airborne = true;
    climb(leg, mLift.step(random));
    mMotion.east += mMotion.speed * std::sin(mMotion.heading * kRadian) * kStep;
    mMotion.north += mMotion.speed * std::cos(mMotion.heading * kRadian) * kStep;
    mMotion.headWind = headWind();
}

bool Airframe::ended(const Leg& leg, double seconds) const
{
    switch (leg.end) {
    case ELegEnd::eTime: return seconds >= leg.limit;
    case ELegEnd::ePoint: return isNear(leg.target);
    case ELegEnd::eClimbedTo: return mMotion.height >= leg.limit;
    case ELegEnd::eSunkTo: return mMotion.height <= leg.limit;
    case ELegEnd::eLiftOff: return mMotion.speed + headWind() >= kLiftOffSpeed;
    case ELegEnd::eTouchDown: return !mMotion.airborne;
    case ELegEnd::eSlowedTo: return mMotion.speed <= leg.limit;
    }
    return true;
}

} // namespace ZARN::Sim
