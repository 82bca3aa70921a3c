#include "sim/Route.h"

namespace ZARN {

namespace {

constexpr double kTaxiSpeed = 4.5;
constexpr double kTowSpeed = 34;
constexpr double kPatternHeight = 200;

Leg timed(EPhase phase, double seconds, double throttle)
{
    Leg leg;
    leg.phase = phase;
    leg.limit = seconds;
    leg.throttle = throttle;
    return leg;
}

Leg taxiTo(RunwayPoint target)
{
    Leg leg;
    leg.phase = EPhase::eTaxi;
    leg.end = ELegEnd::ePoint;
    leg.throttle = 9;
    leg.steer = ESteer::eTarget;
    leg.target = target;
    leg.speed = kTaxiSpeed;
    return leg;
}

Leg flyTo(RunwayPoint target, double throttle, double speed)
{
    Leg leg = taxiTo(target);
    leg.phase = EPhase::ePattern;
    leg.throttle = throttle;
    leg.speed = speed;
    return leg;
}

void addStart(std::vector<Leg>& route, const CyclePlan& plan)
{
    Leg dark = timed(EPhase::ePowerUp, 38, 0);
    dark.engine = false;
    Leg crank = timed(EPhase::eCranking, 3.5, 4);
    crank.engine = false;
    route.insert(route.end(), {dark, crank, timed(EPhase::eWarmUp, plan.warmUp * 0.5, 9), timed(EPhase::eWarmUp, plan.warmUp * 0.5, 14)});
}

/// Each lane alone for some seconds, at a steady throttle: the engine loses a little speed and must not stop.
void addLaneCheck(std::vector<Leg>& route)
{
    Leg both = timed(EPhase::eLaneCheck, 12, 54);
    Leg withoutA = timed(EPhase::eLaneCheck, 8, 54);
    withoutA.laneOn[0] = false;
    Leg withoutB = timed(EPhase::eLaneCheck, 8, 54);
    withoutB.laneOn[1] = false;
    route.insert(route.end(), {both, withoutA, both, withoutB, both});
}

void addGroundRun(std::vector<Leg>& route, double seconds)
{
    addLaneCheck(route);
    route.push_back(timed(EPhase::eGroundRun, seconds * 0.6, 45));
    route.push_back(timed(EPhase::eGroundRun, 20, 96));
    route.push_back(timed(EPhase::eGroundRun, seconds * 0.4, 25));
}

void addTakeOffAndTow(std::vector<Leg>& route, const TowPlan& tow)
{
    Leg align = timed(EPhase::eLineUp, 14, 9);
    align.steer = ESteer::eRunway;
    align.speed = 1;
    Leg roll = timed(EPhase::eTakeOffRoll, 0, 100);
    roll.end = ELegEnd::eLiftOff;
    roll.steer = ESteer::eRunway;
    roll.speed = kTowSpeed;
    Leg climb = roll;
    climb.phase = EPhase::eTow;
    climb.end = ELegEnd::eClimbedTo;
    climb.limit = tow.releaseHeight;
    climb.throttle = 98;
    climb.steer = ESteer::eTowCircuit;
    climb.climb = tow.climb;
    route.insert(route.end(), {align, timed(EPhase::eLineUp, tow.wait, 6), roll, climb});
}

void addReturn(std::vector<Leg>& route)
{
    Leg release = timed(EPhase::eRelease, 14, 48);
    release.steer = ESteer::eRightTurn;
    release.speed = 40;
    release.climb = -0.5;
    Leg descent = flyTo({1500, 2500}, 26, 43);
    descent.phase = EPhase::eDescent;
    descent.end = ELegEnd::eSunkTo;
    descent.limit = kPatternHeight + 20;
    descent.climb = -5;
    Leg final = timed(EPhase::eFinal, 0, 18);
    final.end = ELegEnd::eTouchDown;
    final.steer = ESteer::eRunway;
    final.speed = 29;
    Leg rollOut = timed(EPhase::eRollOut, kTaxiSpeed, 5);
    rollOut.end = ELegEnd::eSlowedTo;
    rollOut.steer = ESteer::eRunway;
    route.insert(route.end(), {release, descent, flyTo({1300, 1000}, 38, 38), flyTo({-1000, 1000}, 36, 36), flyTo({-1600, 450}, 28, 32), final,
                               rollOut, taxiTo({250, -25}), taxiTo({30, -25}), taxiTo({-15, -6})});
}

void addTow(std::vector<Leg>& route, const TowPlan& tow, int index)
{
    const std::size_t first = route.size();
    addTakeOffAndTow(route, tow);
    addReturn(route);
    for (std::size_t leg = first; leg < route.size(); ++leg)
        route[leg].tow = index;
}

void addStop(std::vector<Leg>& route)
{
    Leg dark = timed(EPhase::eShutdown, 25, 0);
    dark.engine = false;
    route.push_back(timed(EPhase::eCoolDown, 90, 6));
    route.push_back(dark);
}

} // namespace

std::vector<Leg> buildRoute(const CyclePlan& plan)
{
    std::vector<Leg> route;
    addStart(route, plan);
    if (plan.groundRun > 0)
        addGroundRun(route, plan.groundRun);
    if (!plan.tows.empty()) {
        route.push_back(taxiTo({-20, -60}));
        addLaneCheck(route);
        route.push_back(taxiTo({-15, -4}));
        for (std::size_t tow = 0; tow < plan.tows.size(); ++tow)
            addTow(route, plan.tows[tow], static_cast<int>(tow));
        route.push_back(taxiTo(kParking));
    }
    addStop(route);
    return route;
}

} // namespace ZARN
