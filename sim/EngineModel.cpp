#include "sim/EngineModel.h"

#include "sim/Airframe.h"

#include <algorithm>

namespace ZARN {

namespace {

constexpr double kFullPressure = 1440; // hPa in the manifold at full throttle
constexpr double kFullSpeed = 5450;

struct Point {
    double x, y;
};

template <std::size_t Size> double interpolate(const std::array<Point, Size>& curve, double x)
{
    for (std::size_t i = 1; i < Size; ++i) {
        if (x <= curve[i].x) {
            const Point& a = curve[i - 1];
            const Point& b = curve[i];
            return a.y + (b.y - a.y) * std::max(0.0, x - a.x) / (b.x - a.x);
        }
    }
    return curve[Size - 1].y;
}

constexpr std::array<Point, 7> kSpeedCurve{{{0, 1750}, {10, 2250}, {30, 3300}, {55, 4050}, {75, 4700}, {90, 5200}, {100, kFullSpeed}}};
constexpr std::array<Point, 7> kPressureCurve{{{0, 370}, {10, 430}, {30, 640}, {55, 940}, {75, 1190}, {90, 1360}, {100, kFullPressure}}};
constexpr std::array<double, 4> kCylinderOffset{-12, 8, -4, 15};

/// Lets a value follow its target with a lag of so many seconds.
void follow(double& value, double target, double lag)
{
    value += (target - value) * std::min(1.0, kStep / lag);
}

} // namespace

EngineModel::EngineModel(double warmth, double outsideTemperature, double ambientPressure)
{
    mCondition.manifoldPressure = mCondition.boostPressure = mCondition.boostTarget = ambientPressure;
    mCondition.coolant = outsideTemperature + 45 * warmth;
    mCondition.oilTemperature = outsideTemperature + 40 * warmth;
    mCondition.manifoldTemperature = outsideTemperature + 12 * warmth;
    mCondition.egt.fill(outsideTemperature + 60 * warmth);
}

void EngineModel::step(const EngineDemand& demand)
{
    stepSpeedAndAir(demand);
    stepTemperatures(demand);
    stepPressures(demand);
}

void EngineModel::stepSpeedAndAir(const EngineDemand& demand)
{
    EngineCondition& c = mCondition;
    const bool bothLanes = demand.laneOn[0] && demand.laneOn[1];
    double speed = demand.cranking ? 260 : 0;
    if (demand.running)
        speed = interpolate(kSpeedCurve, demand.throttle) - (bothLanes ? 0 : 95);
    follow(c.speed, speed, demand.running ? 0.7 : 0.4);
    if (c.speed < 1)
        c.speed = 0;

    double pressure = demand.ambientPressure;
    c.boostTarget = demand.ambientPressure;
    if (demand.running) {
        pressure = interpolate(kPressureCurve, demand.throttle) + (demand.overboost ? 145 : 0);
        c.boostTarget = std::max(demand.ambientPressure, interpolate(kPressureCurve, demand.throttle) + 25);
    }
    follow(c.manifoldPressure, pressure, 0.6);
    follow(c.boostPressure, std::max(demand.ambientPressure, pressure + 30), 0.8);
    c.relativePower = demand.running ? std::max(0.0, c.speed / kFullSpeed * (c.manifoldPressure - 250) / (kFullPressure - 250)) : 0;
    c.fuelFlow = demand.running ? 3.2 + 36 * c.relativePower : 0;
}

void EngineModel::stepTemperatures(const EngineDemand& demand)
{
    EngineCondition& c = mCondition;
    follow(mHeat, demand.hot ? 1 : 0, 60);
    const double air = demand.outsideTemperature;
    const double power = c.relativePower;
    for (std::size_t cylinder = 0; cylinder < c.egt.size(); ++cylinder) {
        const double hot = cylinder == 1 ? 112 * mHeat : 0;
        const double target = demand.running ? 570 + 285 * std::min(1.1, power) + kCylinderOffset[cylinder] + hot : air;
        follow(c.egt[cylinder], target, demand.running ? 6 : 110);
    }
    follow(c.coolant, demand.running ? air + 50 + 26 * power + 44 * mHeat : air, demand.running ? 105 : 1500);
    follow(c.oilTemperature, demand.running ? air + 47 + 36 * power + 8 * mHeat : air, demand.running ? 150 : 1800);
    follow(c.manifoldTemperature, demand.running ? air + 9 + 26 * power + 6 * mHeat : air + 4, 25);
}

void EngineModel::stepPressures(const EngineDemand& demand)
{
    EngineCondition& c = mCondition;
    double oil = 0;
    if (c.speed > 600)
        oil = std::clamp(1.95 + (c.speed - 1750) / 3700 * 2.6 - (c.oilTemperature - 80) * 0.011, 1.65, 5.3);
    else if (c.speed > 100)
        oil = 0.5;
    follow(c.oilPressure, oil, 1.2);
    follow(c.fuelPressure, demand.running || demand.cranking ? 3.05 : 0, demand.running || demand.cranking ? 0.8 : 7);
}

} // namespace ZARN
