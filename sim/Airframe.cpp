#include "sim/Airframe.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kRadian = 0.017453292519943295;
constexpr double kLiftOffSpeed = 29; // m/s through the air
constexpr double kFlareHeight = 6;
constexpr double kGlideSlope = 0.09;
constexpr double kAimingPoint = 60; // m beyond the start of the runway

// The round of a tow: straight out, then a wide left-hand circuit; after the last the round goes on from the second.
constexpr std::array<RunwayPoint, 6> kTowWaypoints{{{2600, 0}, {3600, 2200}, {2000, 4200}, {-1500, 4200}, {-3500, 2000}, {-2500, -900}}};

double wrap(double degrees)
{
    return degrees - 360.0 * std::floor(degrees / 360.0);
}

/// The way from one heading to another, -180 <= way < 180.
double turn(double from, double to)
{
    return wrap(to - from + 180.0) - 180.0;
}

double approach(double value, double target, double most)
{
    return value + std::clamp(target - value, -most, most);
}

/// A point stays within reach of the tightest turn, or the aircraft would circle about it for ever.
double captureRadius(bool airborne)
{
    return airborne ? 500 : 13;
}

} // namespace

Airframe::Airframe(const CyclePlan& plan) : mWindSpeed(plan.windSpeed), mWindFrom(plan.windFrom), mLift(0.5, 12, kStep)
{
    const double along = kRunwayHeading * kRadian;
    mMotion.east = kParking.along * std::sin(along) - kParking.left * std::cos(along);
    mMotion.north = kParking.along * std::cos(along) + kParking.left * std::sin(along);
    mMotion.heading = 350;
}

double Airframe::headWind() const
{
    return mWindSpeed * std::cos((mWindFrom - mMotion.heading) * kRadian);
}

RunwayPoint Airframe::place() const
{
    const double s = std::sin(kRunwayHeading * kRadian);
    const double c = std::cos(kRunwayHeading * kRadian);
    return {mMotion.east * s + mMotion.north * c, mMotion.north * s - mMotion.east * c};
}

double Airframe::distanceTo(RunwayPoint target) const
{
    const RunwayPoint here = place();
    return std::hypot(target.along - here.along, target.left - here.left);
}

double Airframe::headingTo(RunwayPoint target) const
{
    const RunwayPoint here = place();
    return wrap(kRunwayHeading - std::atan2(target.left - here.left, target.along - here.along) / kRadian);
}

double Airframe::wantedHeading(const Leg& leg)
{
    switch (leg.steer) {
    case ESteer::eHold: break;
    case ESteer::eRunway: {
        const double most = mMotion.airborne ? 45 : 20;
        const double gain = mMotion.airborne ? 0.3 : 2;
        return kRunwayHeading + std::clamp(place().left * gain, -most, most);
    }
    case ESteer::eTarget: return headingTo(leg.target);
    case ESteer::eTowCircuit:
        if (distanceTo(kTowWaypoints[mWaypoint]) < captureRadius(true))
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
    const double wanted = mMotion.speed < 0.2 ? 0 : std::clamp(turn(mMotion.heading, wantedHeading(leg)) * 0.8, -most, most);
    mMotion.turnRate = approach(mMotion.turnRate, wanted, hardest * kStep);
    mMotion.heading = wrap(mMotion.heading + mMotion.turnRate * kStep);
}

void Airframe::accelerate(const Leg& leg, double throttle)
{
    double wanted = leg.speed;
    double most = 0.7;
    if (leg.phase == EPhase::eTakeOffRoll)
        most = 1.75 * (throttle / 100) * (1 - 0.35 * mMotion.speed / kLiftOffSpeed);
    else if (leg.phase == EPhase::eRollOut)
        most = 1.5;
    else if (mMotion.airborne)
        most = 1.0;
    if (mMotion.airborne)
        wanted -= headWind();
    const double before = mMotion.speed;
    mMotion.speed = approach(mMotion.speed, wanted, most * kStep);
    mMotion.acceleration = (mMotion.speed - before) / kStep;
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

void Airframe::climb(const Leg& leg, RandomSource& random)
{
    const double lift = mLift.step(random);
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
    climb(leg, random);
    mMotion.east += mMotion.speed * std::sin(mMotion.heading * kRadian) * kStep;
    mMotion.north += mMotion.speed * std::cos(mMotion.heading * kRadian) * kStep;
}

bool Airframe::ended(const Leg& leg, double seconds) const
{
    switch (leg.end) {
    case ELegEnd::eTime: return seconds >= leg.limit;
    case ELegEnd::ePoint: return distanceTo(leg.target) < captureRadius(mMotion.airborne);
    case ELegEnd::eClimbedTo: return mMotion.height >= leg.limit;
    case ELegEnd::eSunkTo: return mMotion.height <= leg.limit;
    case ELegEnd::eLiftOff: return mMotion.speed + headWind() >= kLiftOffSpeed;
    case ELegEnd::eTouchDown: return !mMotion.airborne;
    case ELegEnd::eSlowedTo: return mMotion.speed <= leg.limit;
    }
    return true;
}

} // namespace ZARN
