#pragma once

#include <array>
#include <cstddef>

namespace ZARN {

enum class ESensor { eMap, eThrottle, eEgt1, eEgt2, eEgt3, eEgt4, eCoolant, eOil };
enum class ESensorState { eOk, eOpenCircuit, eShortCircuit, eOutOfRange, eSubstitute };
enum class ELaneState { eOff, eSelfTest, eStandby, eActive, eDegraded };
enum class EEngineState { eStopped, eCranking, eRunning, eWarmUp, eShuttingDown };
enum class ELamp { eMaster, eLaneA, eLaneB, eOilPressure, eOilTemperature, eCoolant, eEgt, eBoost, eFuelPressure, eVoltage, eGenerator, eFuelReserve };
constexpr std::size_t kLamps = 12;

/// What one lane of the engine control unit measures and commands.
struct LaneValues {
    double engineSpeed = 0, manifoldPressure = 0, throttle = 0, boostPressure = 0, boostTarget = 0;
    double ignitionTiming = 0, injectionTime = 0, injectionDuty = 0, lambda = 0, fuelFlow = 0;
    std::array<double, 4> egt{};
    double coolant = 0, oilTemperature = 0, oilPressure = 0, manifoldTemperature = 0, fuelPressure = 0, ambientPressure = 0;
    double controlTemperature = 0, supplyVoltage = 0, injectorVoltage = 0, wastegate = 0, knock = 0, fuelTrim = 0, load = 0;
    double state = 0, warning = 0, fuelMap = 0;
    std::array<double, 8> sensors{}; ///< indexed by ESensor, each an ESensorState
    double seconds = 0, triggerErrors = 0;
    double faults = 0; ///< a word of 32 bits
};

/// What the monitoring unit combines from both lanes.
struct EngineValues {
    double speed = 0, propellerSpeed = 0, manifoldPressure = 0, power = 0, relativePower = 0, torque = 0;
    double fuelFlow = 0, fuelUsed = 0, highestEgt = 0, egtSpread = 0;
    double coolant = 0, oilTemperature = 0, oilPressure = 0, gearboxTemperature = 0, intercoolerTemperature = 0, state = 0;
};

/// The counters and tanks of the monitoring unit.
struct MonitorValues {
    double engineSeconds = 0, starts = 0, secondsSinceStart = 0, totalFuel = 0;
    double fuelLeft = 0, fuelRight = 0, temperature = 0, cardFree = 0, recorderState = 0;
};

/// The electrical system; generators and fuel pumps by number.
struct ElectricalValues {
    double mainBus = 0, essentialBus = 0, batteryCurrent = 0, batteryTemperature = 0;
    std::array<double, 2> generatorCurrent{}, generatorState{}, fuelPump{};
    double starter = 0;
};

/// The air outside as the engine control needs it.
struct AmbientValues {
    double pressure = 0, temperature = 0, densityAltitude = 0, humidity = 0;
};

/// What the receiver sends; zeros until it knows.
struct GpsValues {
    double latitude = 0, longitude = 0; ///< DDDMM.mmmm
    double altitude = 0, groundSpeed = 0, track = 0, verticalSpeed = 0;
    double utcTime = 0, utcDate = 0; ///< hhmmss and ddMMyy as numbers
    double fix = 0, satellites = 0;
};

/// The air data unit; speeds in km/h.
struct AirValues {
    double indicatedSpeed = 0, trueSpeed = 0, pressureAltitude = 0, vario = 0, temperature = 0, acceleration = 0, qnh = 0;
};

/// Everything that the units of the aircraft send, at one instant, in the metric units of the profile. Enumerations, counters
/// and words of bits are whole numbers. The schedule of messages points into it, so its owner keeps it in place.
struct Snapshot {
    std::array<LaneValues, 2> lanes;
    EngineValues engine;
    MonitorValues monitor;
    ElectricalValues electrical;
    AmbientValues ambient;
    GpsValues gps;
    AirValues air;
    std::array<double, kLamps> lamps{}; ///< indexed by ELamp: 0 off, 1 yellow, 2 red
};

} // namespace ZARN
