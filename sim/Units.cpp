#include "sim/Situation.h"

#include "app/Numeric.h"

#include <algorithm>

namespace ZARN::Sim {

namespace {

constexpr double kMetresPerDegree = 111120;
constexpr double kTimeSeconds = 18; // the receiver knows the time
constexpr double kFixSeconds = 36;  // and then the place
constexpr double kHeightSeconds = 47;
constexpr double kWarm = 60; // degrees Celsius of the coolant

/// What the lanes command, as long as they run the engine; each feeds half of the injectors' time, a lane alone all of it.
void commandLane(const Situation& now, std::size_t lane, double* own)
{
    const double flow = now.values[eTotalFlow], speed = own[eEngineSpeed], power = now.values[eRelativePower] / 100;
    const double on = now.leg.laneOn[lane] && now.leg.engine && speed > 0 ? 1 : 0;
    own[eFuelFlow] = on * flow * (now.leg.laneOn[1 - lane] ? 0.5 : 1);
    own[eInjectionTime] = on > 0 ? flow / speed * 1400 : 0;
    own[eInjectionDuty] = own[eInjectionTime] * speed / 1200;
    own[eIgnitionTiming] = on * (8 + 20 * speed / 5450 - 6 * power);
    own[eLambda] = on * (1 - 0.16 * power);
    own[eFuelTrim] = on * (2 - 3 * power);
    own[eWastegate] = on * std::max(1.0, 99 - 85 * power);
    own[eKnock] = on * (14 + 22 * power);
}

void stepLane(Situation& now, std::size_t lane)
{
    double* const own = now.values.lane(lane);
    const bool fault = lane == 1 && now.incidents.egtSensor;
    if (lane == 1) {
        const double lastGood = own[eEgts + 2];
        std::copy_n(now.values.lane(0), std::size_t(eLaneValues), own);
        if (fault)
            own[eEgts + 2] = lastGood;
    }
    commandLane(now, lane, own);
    const double throttle = now.throttle, voltage = now.values[eMainBus];
    own[eThrottle] = std::min(throttle, 99.8); // at its stop
    own[eAmbientPressure] = now.values[ePressure];
    own[eControlTemperature] = now.values[eAirTemperature] + 12 * (1 - std::exp(-now.seconds / 900));
    own[eSupplyVoltage] = voltage - 0.12;
    own[eInjectorVoltage] = voltage - 0.2;
    own[eLoad] = now.values[eRelativePower];
    own[eSeconds] = std::floor(now.logBook.controlSeconds);
    own[eState] = now.seconds < 6 ? kSelfTest : (!now.leg.laneOn[lane] ? kOff : (fault ? kDegraded : (now.leg.engine ? kActive : kStandby)));
    own[eSensorEgt3] = fault ? 4 : 0; // a substitute value
    // The maps of the fuel table: start, warm-up, economy, power, take-off.
    own[eFuelMap] = !now.leg.engine ? 0 : (own[eCoolant] < kWarm ? 1 : (throttle > 92 ? 4 : (throttle > 70 ? 3 : 2)));
}

/// What the monitoring unit combines from both lanes and counts.
void stepMonitor(Situation& now)
{
    Snapshot& values = now.values;
    const double *a = values.lane(0), *b = values.lane(1);
    values[eSpeed] = a[eEngineSpeed];
    values[ePropellerSpeed] = values[eSpeed] / 2.43;
    values[eMeanManifoldPressure] = a[eManifoldPressure];
    values[ePower] = 1.04 * values[eRelativePower];
    values[eTorque] = values[eSpeed] > 600 ? values[ePower] * 9549 / values[eSpeed] : 0;
    const auto [least, most] = std::minmax({a[eEgts], a[eEgts + 1], a[eEgts + 2], a[eEgts + 3], b[eEgts + 2]});
    values[eHighestEgt] = most;
    values[eEgtSpread] = most - least;
    values[eMeanCoolant] = a[eCoolant];
    values[eMeanOilTemperature] = a[eOilTemperature];
    values[eLowestOilPressure] = a[eOilPressure];
    values[eGearboxTemperature] = a[eOilTemperature] - 6;
    values[eIntercoolerTemperature] = a[eManifoldTemperature] + 9;
    // Stopped, cranking, running, warm-up, shutting down.
    const double stopped = now.isCranking() ? 1 : (values[eSpeed] > 0 && now.runningSeconds > 0 ? 4 : 0);
    values[eEngineState] = now.leg.engine ? (a[eCoolant] < kWarm ? 3 : 2) : stopped;

    LogBook& book = now.logBook;
    const double burnt = values[eTotalFlow] * (kStep / 3600);
    values[eFuelUsed] += burnt;
    values[eTotalFuel] = std::floor(book.totalFuel += burnt);
    values[eFuelLeft] = book.fuelLeft = std::max(0.0, book.fuelLeft - burnt * 0.52);
    values[eFuelRight] = book.fuelRight = std::max(0.0, book.fuelRight - burnt * 0.48);
    values[eEngineSeconds] = std::floor(book.engineSeconds += now.leg.engine ? kStep : 0);
    values[eStarts] = book.starts;
    values[eSecondsSinceStart] = std::floor(now.runningSeconds);
    values[eMonitorTemperature] = values[eAirTemperature] + 9;
    book.controlSeconds += kStep;
    book.recordedSeconds += kStep;
    values[eCardFree] = std::max(1.0, 93 - book.recordedSeconds / 12000);
    values[eRecorderState] = 1;
}

/// A battery with two generators; when the first has failed, the battery alone carries the load and sinks slowly.
void stepElectrical(Situation& now)
{
    Snapshot& values = now.values;
    const bool running = now.leg.engine, cranking = now.isCranking(), failed = now.incidents.generator;
    const bool charging = running && !failed;
    const double idle = failed ? 12.5 - 0.003 * (now.runningSeconds - 100) : 12.6;
    const double target = cranking ? 10.4 : (charging ? 14.1 : idle);
    values[eMainBus] += (target - values[eMainBus]) * kStep / (cranking ? 0.4 : 1.6);
    values[eEssentialBus] = values[eMainBus] - 0.06;
    const double load = running ? 16 : 9;
    values[eGeneratorCurrents] = charging ? load + 22 * std::exp(-now.runningSeconds / 240) : 0;
    values[eGeneratorCurrents + 1] = running ? 6 : 0;
    values[eBatteryCurrent] = cranking ? -180 : values[eGeneratorCurrents] - load;
    values[eBatteryTemperature] = values[eAirTemperature] + 3;
    values[eGeneratorStates] = failed ? 2 : (running ? 1 : 0);
    values[eGeneratorStates + 1] = running ? 1 : 0;
    values[eStarter] = cranking ? 1 : 0;
    values[eFuelPumps] = running || cranking ? 1 : 0;
    values[eFuelPumps + 1] = now.motion.height < 150 && now.throttle > 12 ? values[eFuelPumps] : 0; // helps near the ground
}

/// Degrees to the form DDDMM.mmmm.
double degreesAndMinutes(double degrees)
{
    const double whole = std::floor(degrees);
    return whole * 100 + (degrees - whole) * 60;
}

void stepGps(Situation& now)
{
    Snapshot& values = now.values;
    const Motion& motion = now.motion;
    const double seconds = now.seconds;
    for (Drift* const error : {&now.eastError, &now.northError, &now.altitudeError})
        error->step(kStep, now.random);
    // Under a covered antenna now and then a satellite, never enough for a time.
    values[eSatellites] = now.plan.clock ? std::min(11.0, std::floor(seconds / 7)) : (std::fmod(seconds, 40) < 12 ? 1 : 0);
    if (!now.plan.clock || seconds < kTimeSeconds)
        return;
    const QDateTime time = now.plan.powerUp.addSecs(saturatingCast<qint64>(seconds));
    values[eUtcTime] = time.toString("HHmmss").toDouble();
    values[eUtcDate] = time.toString("ddMMyy").toDouble();
    values[eFix] = seconds < kFixSeconds ? 1 : (seconds < kHeightSeconds ? 2 : 3);
    if (seconds < kFixSeconds)
        return;
    const double sine = std::sin(kRunwayHeading * kRadian), cosine = std::cos(kRunwayHeading * kRadian);
    const double north = motion.place.along * cosine + motion.place.left * sine + now.northError.value;
    const double east = motion.place.along * sine - motion.place.left * cosine + now.eastError.value;
    values[eLatitude] = degreesAndMinutes(kFieldLatitude + north / kMetresPerDegree);
    values[eLongitude] = degreesAndMinutes(kFieldLongitude + east / (kMetresPerDegree * std::cos(kFieldLatitude * kRadian)));
    values[eGroundSpeed] = motion.speed * 3.6;
    values[eTrack] = motion.heading;
    if (seconds < kHeightSeconds)
        return;
    values[eAltitude] = kFieldElevation + motion.height + now.altitudeError.value;
    values[eVerticalSpeed] = motion.climb;
}

} // namespace

void stepAir(Situation& now)
{
    Snapshot& values = now.values;
    const Motion& motion = now.motion;
    const double altitude = kFieldElevation + motion.height + (1013.25 - now.plan.qnh) * 8.3;
    values[ePressureAltitude] = altitude;
    values[ePressure] = 1013.25 * std::pow(1 - altitude / 44330.8, 5.2559);
    values[eTemperature] = values[eAirTemperature] = now.plan.temperature - 0.0075 * motion.height;
    values[eDensityAltitude] = altitude + 36.6 * (values[eTemperature] - 15 + 0.0065 * altitude);
    values[eHumidity] = std::clamp(62 + 0.01 * motion.height, 0.0, 100.0);
    const double through = motion.speed + motion.headWind;
    values[eTrueSpeed] = through > 8 ? through * 3.6 : 0;
    values[eIndicatedSpeed] = values[eTrueSpeed] * std::sqrt(values[ePressure] / 1013.25 * 288.15 / (values[eTemperature] + 273.15));
    values[eVario] = motion.climb;
    values[eAcceleration] = std::hypot(1, motion.speed * motion.turnRate * kRadian / 9.81);
    values[eQnh] = now.plan.qnh;
}

void stepUnits(Situation& now)
{
    stepElectrical(now);
    stepLane(now, 0);
    stepLane(now, 1);
    stepMonitor(now);
    stepGps(now);
}

} // namespace ZARN::Sim
