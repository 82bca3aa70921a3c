#include "sim/Route.h"

namespace ZARN::Sim {

namespace {

using Legs = std::vector<Leg>;

constexpr double kTaxiSpeed = 4.5;
constexpr double kTowSpeed = 34;
constexpr double kPatternHeight = 200;

Leg stand(double seconds, double throttle, bool laneA = true, bool laneB = true)
{
    return {.limit = seconds, .throttle = throttle, .laneOn = {laneA, laneB}};
}

Leg dark(double seconds)
{
    return {.limit = seconds, .engine = false};
}

Leg taxiTo(RunwayPoint target)
{
    return {.end = ELegEnd::ePoint, .throttle = 9, .steer = ESteer::eTarget, .target = target, .speed = kTaxiSpeed};
}

Leg flyTo(RunwayPoint target, double throttle, double speed)
{
    return {.phase = EPhase::eReturn, .end = ELegEnd::ePoint, .throttle = throttle, .steer = ESteer::eTarget, .target = target, .speed = speed};
}

/// Each lane alone for some seconds, at a steady throttle: the engine loses a little speed and must not stop.
Legs laneCheck()
{
    return {stand(12, 54), stand(8, 54, false, true), stand(12, 54), stand(8, 54, true, false), stand(12, 54)};
}

/// From the start of the runway back to it; the climb goes straight on, then round in wide left-hand turns.
Legs towLegs(const TowPlan& tow)
{
    using enum EPhase;
    const Leg climb{.phase = eTow, .end = ELegEnd::eClimbedTo, .limit = 150, .throttle = 98, .steer = ESteer::eRunway, .speed = kTowSpeed,
                    .climb = tow.climb};
    Leg round = climb;
    round.limit = tow.releaseHeight;
    round.steer = ESteer::eTurn;
    round.turn = -1.2;
    Legs legs{
        {.limit = 14, .throttle = 9, .steer = ESteer::eRunway, .speed = 1},
        stand(tow.wait, 6),
        {.phase = eTakeOffRoll, .end = ELegEnd::eLiftOff, .throttle = 100, .steer = ESteer::eRunway, .speed = kTowSpeed},
        climb, round,
        {.phase = eReturn, .limit = 14, .throttle = 48, .turn = 6, .speed = 40, .climb = -0.5},
        {.phase = eReturn, .end = ELegEnd::eSunkTo, .limit = kPatternHeight + 20, .throttle = 26, .steer = ESteer::eTarget,
         .target = {1500, 2500}, .speed = 43, .climb = -5},
        flyTo({1300, 1000}, 38, 38), flyTo({-1000, 1000}, 36, 36), flyTo({-1600, 450}, 28, 32),
        {.phase = eFinal, .end = ELegEnd::eTouchDown, .throttle = 18, .steer = ESteer::eRunway, .speed = 29},
        {.phase = eRollOut, .end = ELegEnd::eSlowedTo, .limit = kTaxiSpeed, .throttle = 5, .steer = ESteer::eRunway},
        taxiTo({250, -25}), taxiTo({30, -25}), taxiTo({-15, -6})};
    for (Leg& leg : legs)
        leg.tow = tow;
    return legs;
}

} // namespace

std::vector<Leg> buildRoute(const CyclePlan& plan)
{
    Legs route{dark(38), {.phase = EPhase::eCranking, .limit = 3.5, .throttle = 4, .engine = false}, stand(plan.warmUp * 0.5, 9),
               stand(plan.warmUp * 0.5, 14)};
    const auto add = [&route](const Legs& legs) { route.insert(route.end(), legs.begin(), legs.end()); };
    if (plan.groundRun > 0) {
        add(laneCheck());
        add({stand(plan.groundRun * 0.6, 45), stand(20, 96), stand(plan.groundRun * 0.4, 25)});
    }
    if (!plan.tows.empty()) {
        add({taxiTo({-20, -60})});
        add(laneCheck());
        add({taxiTo({-15, -4})});
        for (const TowPlan& tow : plan.tows)
            add(towLegs(tow));
        add({taxiTo(kParking)});
    }
    add({stand(90, 6), dark(25)});
    return route;
}

} // namespace ZARN::Sim
