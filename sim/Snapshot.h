#pragma once

#include <array>
#include <cstdint>

namespace ZARN::Sim {

/// Identifiers of the messages, as the profile "915" has them; where a group counts on from another enumeration, its first.
enum EIdentifier : std::uint32_t {
    eLaneA = 300, eLaneB = 400,
    eSpeed = 500, ePropellerSpeed, eMeanManifoldPressure, ePower, eRelativePower, eTorque, eTotalFlow, eFuelUsed, eHighestEgt, eEgtSpread,
    eMeanCoolant, eMeanOilTemperature, eLowestOilPressure, eGearboxTemperature, eIntercoolerTemperature, eEngineState,
    eEngineSeconds = 540, eStarts, eSecondsSinceStart, eTotalFuel, eFuelLeft, eFuelRight, eMonitorTemperature, eCardFree, eRecorderState,
    eMainBus = 600, eEssentialBus, eBatteryCurrent, eBatteryTemperature, eGeneratorCurrents, eGeneratorStates = 606, eFuelPumps = 608,
    eStarter = 610,
    ePressure = 650, eTemperature, eDensityAltitude, eHumidity,
    eIndicatedSpeed = 700, eTrueSpeed, ePressureAltitude, eVario, eAirTemperature, eAcceleration, eQnh,
    eLamps = 800,
    eLatitude = 1036, eLongitude, eAltitude, eGroundSpeed, eTrack, eVerticalSpeed, eUtcTime, eUtcDate, eFix, eSatellites,
    eFaultWords = 1200, eIdentifierEnd = 1202
};

/// What one lane of the engine control unit measures and commands, counted from its first identifier.
enum ELaneValue : std::uint32_t {
    eEngineSpeed, eManifoldPressure, eThrottle, eBoostPressure, eBoostTarget, eIgnitionTiming, eInjectionTime, eInjectionDuty, eLambda,
    eFuelFlow, eEgts, eCoolant = 14, eOilTemperature, eOilPressure, eManifoldTemperature, eFuelPressure, eAmbientPressure,
    eControlTemperature, eSupplyVoltage, eInjectorVoltage, eWastegate, eKnock, eFuelTrim, eLoad, eState, eWarning, eFuelMap,
    eSensorEgt3 = 34, eSeconds = 38, eTriggerErrors, eLaneValues
};

enum ELamp : std::uint32_t {
    eMaster, eLampA, eLampB, eOilPressureLamp, eOilTemperatureLamp, eCoolantLamp, eEgtLamp, eBoostLamp, eFuelPressureLamp, eVoltageLamp,
    eGeneratorLamp, eReserveLamp
};

// States of a lane.
constexpr double kOff = 0, kSelfTest = 1, kStandby = 2, kActive = 3, kDegraded = 4;

/// Everything that the units of the aircraft know at one instant, by identifier and in the metric units of the profile, before a sensor's
/// noise is added; zeros until they know. Enumerations, counters and words of bits are whole numbers; lamps are 0 off, 1 yellow, 2 red.
struct Snapshot : std::array<double, eIdentifierEnd> {
    Snapshot() : array{} {}
    /// The values of lane 0 or 1.
    double* lane(std::size_t lane) { return data() + eLaneA + lane * (eLaneB - eLaneA); }
};

} // namespace ZARN::Sim
