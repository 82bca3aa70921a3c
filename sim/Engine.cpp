#include "sim/Systems.h"

#include <algorithm>

namespace ZARN::Sim {

namespace {

constexpr double kFullPressure = 1440; // hPa in the manifold at full throttle
constexpr double kFullSpeed = 5450;

struct Point {
    double x, y;
};
using Curve = std::array<Point, 7>;

// Over the throttle in percent.
constexpr Curve kSpeedCurve{{{0, 1750}, {10, 2250}, {30, 3300}, {55, 4050}, {75, 4700}, {90, 5200}, {100, kFullSpeed}}};
constexpr Curve kPressureCurve{{{0, 370}, {10, 430}, {30, 640}, {55, 940}, {75, 1190}, {90, 1360}, {100, kFullPressure}}};
constexpr std::array<double, 4> kCylinderOffset{-12, 8, -4, 15};

double interpolate(const Curve& curve, double x)
{
    for (std::size_t i = 1; i < curve.size(); ++i) {
        const auto& [a, b] = std::pair(curve[i - 1], curve[i]);
        if (x <= b.x)
            return a.y + (b.y - a.y) * std::max(0.0, x - a.x) / (b.x - a.x);
    }
    return curve.back().y;
}

/// Lets a value follow its target with a lag of so many seconds.
void follow(double& value, double target, double lag)
{
    value += (target - value) * std::min(1.0, kStep / lag);
}

void stepSpeedAndAir(const Situation& now, Engine& engine)
{
    const bool running = now.leg.engine;
    const bool bothLanes = now.leg.laneOn[0] && now.leg.laneOn[1];
    double speed = now.isCranking() ? 260 : 0;
    double pressure = now.ambientPressure;
    engine.boostTarget = now.ambientPressure;
    if (running) {
        speed = interpolate(kSpeedCurve, now.throttle) - (bothLanes ? 0 : 95);
        pressure = interpolate(kPressureCurve, now.throttle) + (now.incidents.overboost ? 145 : 0);
        engine.boostTarget = std::max(now.ambientPressure, interpolate(kPressureCurve, now.throttle) + 25);
    }
    follow(engine.speed, speed, running ? 0.7 : 0.4);
    if (engine.speed < 1)
        engine.speed = 0;
    follow(engine.manifoldPressure, pressure, 0.6);
    follow(engine.boostPressure, std::max(now.ambientPressure, pressure + 30), 0.8);
    const double power = engine.speed / kFullSpeed * (engine.manifoldPressure - 250) / (kFullPressure - 250);
    engine.relativePower = running ? std::max(0.0, power) : 0;
    engine.fuelFlow = running ? 3.2 + 36 * engine.relativePower : 0;
}

void stepTemperatures(const Situation& now, Engine& engine)
{
    const bool running = now.leg.engine;
    const double air = now.outsideTemperature;
    const double power = engine.relativePower;
    follow(engine.overheating, now.incidents.hot ? 1 : 0, 60);
    const double heat = engine.overheating;
    for (std::size_t cylinder = 0; cylinder < engine.egt.size(); ++cylinder) {
        const double hot = cylinder == 1 ? 112 * heat : 0;
        follow(engine.egt[cylinder], running ? 570 + 285 * std::min(1.1, power) + kCylinderOffset[cylinder] + hot : air, running ? 6 : 110);
    }
    follow(engine.coolant, running ? air + 50 + 26 * power + 44 * heat : air, running ? 105 : 1500);
    follow(engine.oilTemperature, running ? air + 47 + 36 * power + 8 * heat : air, running ? 150 : 1800);
    follow(engine.manifoldTemperature, running ? air + 9 + 26 * power + 6 * heat : air + 4, 25);
}

void stepPressures(const Situation& now, Engine& engine)
{
    double oil = engine.speed > 100 ? 0.5 : 0;
    if (engine.speed > 600)
        oil = std::clamp(1.95 + (engine.speed - 1750) / 3700 * 2.6 - (engine.oilTemperature - 80) * 0.011, 1.65, 5.3);
    follow(engine.oilPressure, oil, 1.2);
    const bool pumping = now.leg.engine || now.isCranking();
    follow(engine.fuelPressure, pumping ? 3.05 : 0, pumping ? 0.8 : 7);
}

} // namespace

Engine restingEngine(double warmth, double outsideTemperature, double ambientPressure)
{
    Engine engine;
    engine.manifoldPressure = engine.boostPressure = engine.boostTarget = ambientPressure;
    engine.coolant = outsideTemperature + 45 * warmth;
    engine.oilTemperature = outsideTemperature + 40 * warmth;
    engine.manifoldTemperature = outsideTemperature + 12 * warmth;
    engine.egt.fill(outsideTemperature + 60 * warmth);
    return engine;
}

void stepEngine(Situation& now)
{
    stepSpeedAndAir(now, now.engine);
    stepTemperatures(now, now.engine);
    stepPressures(now, now.engine);
}

} // namespace ZARN::Sim
