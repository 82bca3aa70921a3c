#include "sim/Situation.h"

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
    const Point* const b = std::find_if(curve.begin() + 1, curve.end() - 1, [x](const Point& point) { return x <= point.x; });
    const Point* const a = b - 1;
    return a->y + (b->y - a->y) * std::clamp((x - a->x) / (b->x - a->x), 0.0, 1.0);
}

/// Lets a value follow its target with a lag of so many seconds.
void follow(double& value, double target, double lag)
{
    value += (target - value) * std::min(1.0, kStep / lag);
}

void stepSpeedAndAir(const Situation& now, Snapshot& values)
{
    double* const engine = values.lane(0);
    const bool running = now.leg.engine;
    const double air = values[ePressure];
    const double curve = interpolate(kPressureCurve, now.throttle);
    const double pressure = running ? curve + (now.incidents.overboost ? 145 : 0) : air;
    const double oneLane = now.leg.laneOn[0] && now.leg.laneOn[1] ? 0 : 95;
    follow(engine[eEngineSpeed], running ? interpolate(kSpeedCurve, now.throttle) - oneLane : (now.isCranking() ? 260 : 0), running ? 0.7 : 0.4);
    if (engine[eEngineSpeed] < 1)
        engine[eEngineSpeed] = 0;
    follow(engine[eManifoldPressure], pressure, 0.6);
    follow(engine[eBoostPressure], std::max(air, pressure + 30), 0.8);
    engine[eBoostTarget] = running ? std::max(air, curve + 25) : air;
    const double power = engine[eEngineSpeed] / kFullSpeed * (engine[eManifoldPressure] - 250) / (kFullPressure - 250);
    values[eRelativePower] = running ? 100 * std::max(0.0, power) : 0;
    values[eTotalFlow] = running ? 3.2 + 0.36 * values[eRelativePower] : 0;
}

void stepTemperatures(Situation& now, double* engine)
{
    const bool running = now.leg.engine;
    const double air = now.values[eAirTemperature];
    const double power = now.values[eRelativePower] / 100;
    follow(now.overheating, now.incidents.hot ? 1 : 0, 60);
    for (std::size_t cylinder = 0; cylinder < kCylinderOffset.size(); ++cylinder) {
        const double hot = cylinder == 1 ? 112 * now.overheating : 0;
        const double target = 570 + 285 * std::min(1.1, power) + kCylinderOffset[cylinder] + hot;
        follow(engine[eEgts + cylinder], running ? target : air, running ? 6 : 110);
    }
    follow(engine[eCoolant], running ? air + 50 + 26 * power + 44 * now.overheating : air, running ? 105 : 1500);
    follow(engine[eOilTemperature], running ? air + 47 + 36 * power + 8 * now.overheating : air, running ? 150 : 1800);
    follow(engine[eManifoldTemperature], running ? air + 9 + 26 * power + 6 * now.overheating : air + 4, 25);
}

void stepLiquids(const Situation& now, double* engine)
{
    const double speed = engine[eEngineSpeed];
    double oil = speed > 100 ? 0.5 : 0;
    if (speed > 600)
        oil = std::clamp(1.95 + (speed - 1750) / 3700 * 2.6 - (engine[eOilTemperature] - 80) * 0.011, 1.65, 5.3);
    follow(engine[eOilPressure], oil, 1.2);
    const bool pumping = now.leg.engine || now.isCranking();
    follow(engine[eFuelPressure], pumping ? 3.05 : 0, pumping ? 0.8 : 7);
}

} // namespace

void restEngine(Situation& now)
{
    double* const engine = now.values.lane(0);
    now.values[eMainBus] = 12.7;
    const double air = now.plan.temperature, warmth = now.plan.engineWarmth;
    engine[eManifoldPressure] = engine[eBoostPressure] = now.values[ePressure];
    engine[eCoolant] = air + 45 * warmth;
    engine[eOilTemperature] = air + 40 * warmth;
    engine[eManifoldTemperature] = air + 12 * warmth;
    std::fill_n(engine + eEgts, kCylinderOffset.size(), air + 60 * warmth);
}

void stepEngine(Situation& now)
{
    stepSpeedAndAir(now, now.values);
    stepTemperatures(now, now.values.lane(0));
    stepLiquids(now, now.values.lane(0));
}

} // namespace ZARN::Sim
