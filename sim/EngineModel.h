#pragma once

#include "sim/Route.h"

#include <array>

namespace ZARN {

/// What the pilot and the story ask of the engine at one instant.
struct EngineDemand {
    double throttle = 0; ///< percent, the lever as it stands
    bool cranking = false;
    bool running = false;
    bool laneOn[2] = {true, true};
    bool overboost = false;
    bool hot = false;
    double ambientPressure = 1013;  ///< hPa
    double outsideTemperature = 15; ///< degrees Celsius
};

/// What the engine does, free of any sensor's error. Temperatures in degrees Celsius, pressures of air in hPa, of liquids in bar.
struct EngineCondition {
    double speed = 0; ///< rpm
    double manifoldPressure = 0, boostPressure = 0, boostTarget = 0;
    double relativePower = 0; ///< 0 .. about 1
    double fuelFlow = 0;      ///< l/h, both lanes
    std::array<double, 4> egt{};
    double coolant = 0, oilTemperature = 0, oilPressure = 0, fuelPressure = 0, manifoldTemperature = 0;
};

/// The engine's physics: each quantity follows, with its own lag, what throttle, speed and air ask for. No randomness, no sensors.
class EngineModel {
public:
    /// @param warmth 0: as cold as the air, 1: just stopped.
    EngineModel(double warmth, double outsideTemperature, double ambientPressure);

    /// Advances by kStep.
    void step(const EngineDemand& demand);

    [[nodiscard]] const EngineCondition& condition() const { return mCondition; }

private:
    void stepSpeedAndAir(const EngineDemand& demand);
    void stepTemperatures(const EngineDemand& demand);
    void stepPressures(const EngineDemand& demand);

    EngineCondition mCondition;
    double mHeat = 0; ///< 0 .. 1: how far the overheating of a hot tow has gone
};

} // namespace ZARN
