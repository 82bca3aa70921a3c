#include "sim/Instruments.h"

#include "app/Numeric.h"

#include <algorithm>

namespace ZARN::Sim {

namespace {

constexpr double kMetresPerDegree = 111120;
constexpr double kSelfTestSeconds = 6;
constexpr double kTimeSeconds = 18; // the receiver knows the time
constexpr double kFixSeconds = 36;  // and then the place
constexpr double kHeightFixSeconds = 47;
constexpr double kWarm = 60; // degrees Celsius of the coolant
constexpr double kRatedPower = 104; // kW
constexpr double kGear = 2.43;

/// Degrees to the form DDDMM.mmmm.
double degreesAndMinutes(double degrees)
{
    const double whole = std::floor(degrees);
    return whole * 100 + (degrees - whole) * 60;
}

bool hasSensorFault(const Situation& now, std::size_t lane)
{
    return now.incidents.egtSensor && lane == 1;
}

void readLaneAir(const Situation& now, RandomSource& random, std::size_t lane, double* values)
{
    const Engine& engine = now.engine;
    values[eEngineSpeed] = engine.speed > 0 ? std::max(0.0, engine.speed + random.noise(9)) : 0;
    values[eManifoldPressure] = engine.manifoldPressure + random.noise(1.5) + (lane == 0 ? 0.6 : -0.4);
    values[eThrottle] = std::clamp(now.throttle + random.noise(0.15), 0.0, 100.0);
    values[eBoostPressure] = engine.boostPressure + random.noise(1.5);
    values[eBoostTarget] = engine.boostTarget;
    values[eAmbientPressure] = now.ambientPressure + random.noise(0.2);
    for (std::size_t cylinder = 0; cylinder < engine.egt.size(); ++cylinder) {
        const double measured = engine.egt[cylinder] + random.noise(0.5) + (lane == 0 ? 0.5 : -1.0);
        // Without its sensor the lane goes on with the last good value.
        if (!(hasSensorFault(now, lane) && cylinder == 2))
            values[eEgts + cylinder] = measured;
    }
}

/// Each lane feeds half of the injectors' time; a lane alone feeds all of it.
void readLaneFuel(const Situation& now, RandomSource& random, std::size_t lane, double* values)
{
    const Engine& engine = now.engine;
    const double power = engine.relativePower;
    values[eLoad] = std::round(100 * power);
    if (!(now.leg.laneOn[lane] && now.leg.engine && engine.speed > 0)) {
        for (const ELaneValue value : {eFuelFlow, eInjectionTime, eInjectionDuty, eIgnitionTiming, eLambda, eFuelTrim, eWastegate, eKnock})
            values[value] = 0;
        return;
    }
    const double share = now.leg.laneOn[1 - lane] ? 0.5 : 1.0;
    values[eFuelFlow] = engine.fuelFlow * share * (1 + random.noise(0.012));
    values[eInjectionTime] = engine.fuelFlow / engine.speed * 1400 * (1 + random.noise(0.01));
    values[eInjectionDuty] = values[eInjectionTime] * engine.speed / 1200;
    values[eIgnitionTiming] = 8 + 20 * engine.speed / 5450 - 6 * power + random.noise(0.2);
    values[eLambda] = 1.0 - 0.16 * power + random.noise(0.008);
    values[eFuelTrim] = std::round(2 - 3 * power + random.noise(1));
    values[eWastegate] = std::clamp(100 - 85 * power + random.noise(0.6), 0.0, 100.0);
    values[eKnock] = 14 + 22 * power + random.noise(8);
}

void readLaneLiquids(const Situation& now, RandomSource& random, double* values)
{
    const Engine& engine = now.engine;
    values[eCoolant] = engine.coolant + random.noise(0.08);
    values[eOilTemperature] = engine.oilTemperature + random.noise(0.08);
    values[eOilPressure] = engine.oilPressure > 0.05 ? engine.oilPressure + random.noise(0.02) : 0;
    values[eManifoldTemperature] = engine.manifoldTemperature + random.noise(0.08);
    values[eFuelPressure] = std::max(0.0, engine.fuelPressure + random.noise(0.015));
    values[eControlTemperature] = now.outsideTemperature + 12 * (1 - std::exp(-now.seconds / 900)) + random.noise(0.1);
    values[eSupplyVoltage] = now.electrical.voltage - 0.12 + random.noise(0.015);
    values[eInjectorVoltage] = now.electrical.voltage - 0.2 + random.noise(0.03);
    values[eSeconds] = std::floor(now.logBook.controlSeconds);
}

void readLaneStates(const Situation& now, std::size_t lane, double* values)
{
    const bool fault = hasSensorFault(now, lane);
    values[eState] = now.seconds < kSelfTestSeconds ? kSelfTest
                     : !now.leg.laneOn[lane]        ? kOff
                     : fault                        ? kDegraded
                     : now.leg.engine               ? kActive
                                                    : kStandby;
    values[eSensorEgt3] = fault ? 4 : 0; // a substitute value
    // The maps of the fuel table: start, warm-up, economy, power, take-off.
    values[eFuelMap] = !now.leg.engine ? 0 : (now.engine.coolant < kWarm ? 1 : (now.throttle > 92 ? 4 : (now.throttle > 70 ? 3 : 2)));
}

/// What the monitoring unit combines from both lanes.
void readEngine(const Situation& now, Snapshot& values)
{
    const double *a = values.lane(0), *b = values.lane(1);
    const auto mean = [a, b](ELaneValue value) { return (a[value] + b[value]) / 2; };
    values[eSpeed] = mean(eEngineSpeed);
    values[ePropellerSpeed] = values[eSpeed] / kGear;
    values[eMeanManifoldPressure] = mean(eManifoldPressure);
    values[eRelativePower] = 100 * now.engine.relativePower;
    values[ePower] = kRatedPower * now.engine.relativePower;
    values[eTorque] = values[eSpeed] > 600 ? values[ePower] * 9549 / values[eSpeed] : 0;
    values[eTotalFlow] = a[eFuelFlow] + b[eFuelFlow];
    values[eFuelUsed] = now.fuelUsed;
    values[eHighestEgt] = *std::max_element(a + eEgts, a + eCoolant);
    values[eEgtSpread] = values[eHighestEgt] - *std::min_element(a + eEgts, a + eCoolant);
    values[eMeanCoolant] = mean(eCoolant);
    values[eMeanOilTemperature] = mean(eOilTemperature);
    values[eLowestOilPressure] = std::min(a[eOilPressure], b[eOilPressure]);
    values[eGearboxTemperature] = now.engine.oilTemperature - 6;
    values[eIntercoolerTemperature] = now.engine.manifoldTemperature + 9;
    // Stopped, cranking, running, warm-up, shutting down.
    values[eEngineState] = now.leg.engine ? (now.engine.coolant < kWarm ? 3 : 2) : (now.isCranking() ? 1 : 0);
    if (!now.leg.engine && !now.isCranking() && now.engine.speed >= 1 && now.runningSeconds > 0)
        values[eEngineState] = 4;
}

void readMonitor(const Situation& now, Snapshot& values)
{
    const LogBook& book = now.logBook;
    values[eEngineSeconds] = std::floor(book.engineSeconds);
    values[eStarts] = book.starts;
    values[eSecondsSinceStart] = std::floor(now.runningSeconds);
    values[eTotalFuel] = std::floor(book.totalFuel);
    values[eFuelLeft] = std::max(0.0, book.fuelLeft);
    values[eFuelRight] = std::max(0.0, book.fuelRight);
    values[eMonitorTemperature] = std::round(now.outsideTemperature + 9);
    values[eCardFree] = std::max(1.0, std::round(93 - book.recordedSeconds / 3600 * 0.3));
    values[eRecorderState] = 1;
}

void readElectrical(const Situation& now, RandomSource& random, Snapshot& values)
{
    const Electrical& state = now.electrical;
    values[eMainBus] = state.voltage + random.noise(0.015);
    values[eEssentialBus] = state.voltage - 0.06 + random.noise(0.015);
    values[eBatteryCurrent] = state.batteryCurrent + random.noise(0.2);
    values[eBatteryTemperature] = now.outsideTemperature + 3;
    for (std::size_t i = 0; i < 2; ++i) {
        const bool failed = i == 0 && now.incidents.generator;
        values[eGeneratorCurrents + i] = state.generatorCurrent[i] > 0 ? state.generatorCurrent[i] + random.noise(0.2) : 0;
        values[eGeneratorStates + i] = failed ? 2 : (now.leg.engine ? 1 : 0);
    }
    values[eFuelPumps] = now.leg.engine || now.isCranking() ? 1 : 0;
    const bool low = now.motion.height < 150 && now.throttle > 12;
    values[eFuelPumps + 1] = low ? values[eFuelPumps] : 0;
    values[eStarter] = now.isCranking() ? 1 : 0;
}

void readAir(const Situation& now, RandomSource& random, Snapshot& values)
{
    const Motion& motion = now.motion;
    values[ePressure] = now.ambientPressure + random.noise(0.1);
    values[eTemperature] = now.outsideTemperature + random.noise(0.05);
    const double standard = 15 - 0.0065 * now.pressureAltitude;
    values[eDensityAltitude] = now.pressureAltitude + 36.6 * (now.outsideTemperature - standard);
    values[eHumidity] = std::round(std::clamp(62 + 0.01 * motion.height, 0.0, 100.0));
    const double through = std::max(0.0, motion.speed + motion.headWind);
    const double density = now.ambientPressure / 1013.25 * 288.15 / (now.outsideTemperature + 273.15);
    values[eTrueSpeed] = through > 8 ? through * 3.6 + random.noise(0.5) : 0;
    values[eIndicatedSpeed] = values[eTrueSpeed] * std::sqrt(density);
    values[ePressureAltitude] = now.pressureAltitude + random.noise(0.3);
    values[eVario] = motion.climb + random.noise(0.1);
    values[eAirTemperature] = now.outsideTemperature + random.noise(0.1);
    const double side = motion.speed * motion.turnRate * kRadian / 9.81;
    values[eAcceleration] = std::sqrt(1 + side * side) + random.noise(motion.airborne ? 0.06 : 0.01);
    values[eQnh] = now.plan.qnh;
}

void readTime(const Situation& now, Snapshot& values)
{
    const QDateTime time = now.plan.powerUp.addSecs(saturatingCast<qint64>(now.seconds));
    values[eUtcTime] = time.toString("HHmmss").toDouble();
    values[eUtcDate] = time.toString("ddMMyy").toDouble();
}

} // namespace

void Instruments::read(const Situation& now, RandomSource& random, Snapshot& values)
{
    for (std::size_t lane = 0; lane < 2; ++lane) {
        readLaneAir(now, random, lane, values.lane(lane));
        readLaneFuel(now, random, lane, values.lane(lane));
        readLaneLiquids(now, random, values.lane(lane));
        readLaneStates(now, lane, values.lane(lane));
    }
    readEngine(now, values);
    readMonitor(now, values);
    readElectrical(now, random, values);
    readAir(now, random, values);
    readGps(now, random, values);
}

void Instruments::readGps(const Situation& now, RandomSource& random, Snapshot& values)
{
    const double east = mEastError.step(random);
    const double north = mNorthError.step(random);
    const double altitude = mAltitudeError.step(random);
    const double seconds = now.seconds;
    if (!now.plan.clock) {
        // The antenna is covered: now and then a satellite or two, never a time.
        values[eSatellites] = std::fmod(seconds, 40) < 12 ? 1 : 0;
        return;
    }
    values[eSatellites] = std::min(11.0, std::floor(seconds / 7));
    values[eFix] = seconds < kTimeSeconds ? 0 : (seconds < kFixSeconds ? 1 : (seconds < kHeightFixSeconds ? 2 : 3));
    if (seconds >= kTimeSeconds)
        readTime(now, values);
    if (seconds < kFixSeconds)
        return;
    const Motion& motion = now.motion;
    const double perDegreeEast = kMetresPerDegree * std::cos(kFieldLatitude * kRadian);
    values[eLatitude] = degreesAndMinutes(kFieldLatitude + (motion.north + north) / kMetresPerDegree);
    values[eLongitude] = degreesAndMinutes(kFieldLongitude + (motion.east + east) / perDegreeEast);
    values[eGroundSpeed] = std::max(0.0, motion.speed * 3.6 + (motion.speed > 0.1 ? random.noise(0.4) : 0.1));
    values[eTrack] = motion.heading;
    if (seconds < kHeightFixSeconds)
        return;
    values[eAltitude] = kFieldElevation + motion.height + altitude;
    values[eVerticalSpeed] = motion.climb + random.noise(0.1);
}

} // namespace ZARN::Sim
