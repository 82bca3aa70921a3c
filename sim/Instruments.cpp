#include "sim/Instruments.h"

#include "app/Numeric.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kRadian = 0.017453292519943295;
constexpr double kMetresPerDegree = 111120;
constexpr double kSelfTestSeconds = 6;
constexpr double kTimeSeconds = 18; // the receiver knows the time
constexpr double kFixSeconds = 36;  // and then the place
constexpr double kHeightFixSeconds = 47;
constexpr double kRatedPower = 104; // kW
constexpr double kGear = 2.43;

template <typename Enum> double number(Enum value)
{
    return static_cast<double>(static_cast<int>(value));
}

/// Degrees to the form DDDMM.mmmm.
double degreesAndMinutes(double degrees)
{
    const double whole = std::floor(degrees);
    return whole * 100 + (degrees - whole) * 60;
}

bool alone(const Situation& situation, std::size_t lane)
{
    return situation.leg.laneOn[lane] && !situation.leg.laneOn[1 - lane];
}

} // namespace

Instruments::Instruments(const CyclePlan& plan)
    : mSatellites(plan.clock), mQnh(plan.qnh), mPowerUp(plan.powerUp), mEastError(0.7, 40, kStep), mNorthError(0.7, 40, kStep),
      mAltitudeError(0.4, 60, kStep)
{
}

void Instruments::read(const Situation& situation, RandomSource& random, Snapshot& snapshot)
{
    for (std::size_t lane = 0; lane < snapshot.lanes.size(); ++lane)
        readLane(situation, random, lane, snapshot.lanes[lane]);
    readEngine(situation, snapshot);
    readMonitor(situation, snapshot);
    readElectrical(situation, random, snapshot);
    readAmbient(situation, random, snapshot);
    readAir(situation, random, snapshot.air);
    readGps(situation, random, snapshot.gps);
}

void Instruments::readLane(const Situation& situation, RandomSource& random, std::size_t lane, LaneValues& values)
{
    const EngineCondition& engine = situation.engine;
    values.engineSpeed = engine.speed > 0 ? std::max(0.0, engine.speed + random.noise(9)) : 0;
    values.manifoldPressure = engine.manifoldPressure + random.noise(1.5) + (lane == 0 ? 0.6 : -0.4);
    values.throttle = std::clamp(situation.throttle + random.noise(0.15), 0.0, 100.0);
    values.boostPressure = engine.boostPressure + random.noise(1.5);
    values.boostTarget = engine.boostTarget;
    values.ambientPressure = situation.ambientPressure + random.noise(0.2);
    for (std::size_t cylinder = 0; cylinder < values.egt.size(); ++cylinder) {
        const double measured = engine.egt[cylinder] + random.noise(0.5) + (lane == 0 ? 0.5 : -1.0);
        // Without its sensor the lane goes on with the last good value.
        if (!(situation.incidents.egtSensor && lane == 1 && cylinder == 2))
            values.egt[cylinder] = measured;
    }
    readLaneFuel(situation, random, lane, values);
    readLaneLiquids(situation, random, values);
    readLaneStates(situation, lane, values);
}

/// Each lane feeds half of the injectors' time; a lane alone feeds all of it.
void Instruments::readLaneFuel(const Situation& situation, RandomSource& random, std::size_t lane, LaneValues& values) const
{
    const EngineCondition& engine = situation.engine;
    const bool on = situation.leg.laneOn[lane] && situation.leg.engine && engine.speed > 0;
    const double share = on ? (alone(situation, lane) ? 1.0 : 0.5) : 0;
    values.fuelFlow = share > 0 ? engine.fuelFlow * share * (1 + random.noise(0.012)) : 0;
    values.injectionTime = on ? engine.fuelFlow / engine.speed * 1400 * (1 + random.noise(0.01)) : 0;
    values.injectionDuty = values.injectionTime * engine.speed / 1200;
    values.ignitionTiming = on ? 8 + 20 * engine.speed / 5450 - 6 * engine.relativePower + random.noise(0.2) : 0;
    values.lambda = on ? 1.0 - 0.16 * engine.relativePower + random.noise(0.008) : 0;
    values.fuelTrim = on ? std::round(2 - 3 * engine.relativePower + random.noise(1)) : 0;
    values.wastegate = on ? std::clamp(100 - 85 * engine.relativePower + random.noise(0.6), 0.0, 100.0) : 0;
    values.knock = on ? 14 + 22 * engine.relativePower + random.noise(8) : 0;
    values.load = std::round(100 * engine.relativePower);
}

void Instruments::readLaneLiquids(const Situation& situation, RandomSource& random, LaneValues& values) const
{
    const EngineCondition& engine = situation.engine;
    values.coolant = engine.coolant + random.noise(0.08);
    values.oilTemperature = engine.oilTemperature + random.noise(0.08);
    values.oilPressure = engine.oilPressure > 0.05 ? engine.oilPressure + random.noise(0.02) : 0;
    values.manifoldTemperature = engine.manifoldTemperature + random.noise(0.08);
    values.fuelPressure = std::max(0.0, engine.fuelPressure + random.noise(0.015));
    values.controlTemperature = situation.outsideTemperature + 12 * (1 - std::exp(-situation.seconds / 900)) + random.noise(0.1);
    values.supplyVoltage = situation.electrical.voltage - 0.12 + random.noise(0.015);
    values.injectorVoltage = situation.electrical.voltage - 0.2 + random.noise(0.03);
    values.seconds = std::floor(situation.logBook.controlSeconds);
}

void Instruments::readLaneStates(const Situation& situation, std::size_t lane, LaneValues& values) const
{
    const bool sensorFault = situation.incidents.egtSensor && lane == 1;
    ELaneState state = situation.leg.engine ? ELaneState::eActive : ELaneState::eStandby;
    if (situation.seconds < kSelfTestSeconds)
        state = ELaneState::eSelfTest;
    else if (!situation.leg.laneOn[lane])
        state = ELaneState::eOff;
    else if (sensorFault)
        state = ELaneState::eDegraded;
    values.state = number(state);
    values.sensors.fill(number(ESensorState::eOk));
    if (sensorFault)
        values.sensors[static_cast<std::size_t>(ESensor::eEgt3)] = number(ESensorState::eSubstitute);
    // The maps of the fuel table: start, warm-up, economy, power, take-off.
    values.fuelMap = 0;
    if (situation.leg.engine)
        values.fuelMap = situation.engine.coolant < 60 ? 1 : (situation.throttle > 92 ? 4 : (situation.throttle > 70 ? 3 : 2));
}

void Instruments::readEngine(const Situation& situation, Snapshot& snapshot) const
{
    const LaneValues& a = snapshot.lanes[0];
    const LaneValues& b = snapshot.lanes[1];
    EngineValues& engine = snapshot.engine;
    engine.speed = (a.engineSpeed + b.engineSpeed) / 2;
    engine.propellerSpeed = engine.speed / kGear;
    engine.manifoldPressure = (a.manifoldPressure + b.manifoldPressure) / 2;
    engine.relativePower = 100 * situation.engine.relativePower;
    engine.power = kRatedPower * situation.engine.relativePower;
    engine.torque = engine.speed > 600 ? engine.power * 9549 / engine.speed : 0;
    engine.fuelFlow = a.fuelFlow + b.fuelFlow;
    engine.fuelUsed = situation.fuelUsed;
    engine.highestEgt = *std::max_element(a.egt.begin(), a.egt.end());
    engine.egtSpread = engine.highestEgt - *std::min_element(a.egt.begin(), a.egt.end());
    engine.coolant = (a.coolant + b.coolant) / 2;
    engine.oilTemperature = (a.oilTemperature + b.oilTemperature) / 2;
    engine.oilPressure = std::min(a.oilPressure, b.oilPressure);
    engine.gearboxTemperature = situation.engine.oilTemperature - 6;
    engine.intercoolerTemperature = situation.engine.manifoldTemperature + 9;
    EEngineState state = situation.secondsSinceStart > 0 ? EEngineState::eShuttingDown : EEngineState::eStopped;
    if (situation.leg.engine)
        state = situation.engine.coolant < 60 ? EEngineState::eWarmUp : EEngineState::eRunning;
    else if (situation.leg.phase == EPhase::eCranking)
        state = EEngineState::eCranking;
    else if (situation.engine.speed < 1)
        state = EEngineState::eStopped;
    engine.state = number(state);
}

void Instruments::readMonitor(const Situation& situation, Snapshot& snapshot) const
{
    const LogBook& book = situation.logBook;
    MonitorValues& monitor = snapshot.monitor;
    monitor.engineSeconds = std::floor(book.engineSeconds);
    monitor.starts = book.starts;
    monitor.secondsSinceStart = std::floor(situation.secondsSinceStart);
    monitor.totalFuel = std::floor(book.totalFuel);
    monitor.fuelLeft = std::max(0.0, book.fuelLeft);
    monitor.fuelRight = std::max(0.0, book.fuelRight);
    monitor.temperature = std::round(situation.outsideTemperature + 9);
    monitor.cardFree = std::max(1.0, std::round(93 - book.recordedSeconds / 3600 * 0.3));
    monitor.recorderState = 1;
}

void Instruments::readElectrical(const Situation& situation, RandomSource& random, Snapshot& snapshot) const
{
    const ElectricalState& state = situation.electrical;
    ElectricalValues& values = snapshot.electrical;
    values.mainBus = state.voltage + random.noise(0.015);
    values.essentialBus = state.voltage - 0.06 + random.noise(0.015);
    values.batteryCurrent = state.batteryCurrent + random.noise(0.2);
    values.batteryTemperature = situation.outsideTemperature + 3;
    for (std::size_t i = 0; i < 2; ++i) {
        const bool failed = i == 0 && situation.incidents.generator;
        values.generatorCurrent[i] = state.generatorCurrent[i] > 0 ? state.generatorCurrent[i] + random.noise(0.2) : 0;
        values.generatorState[i] = failed ? 2 : (situation.leg.engine ? 1 : 0);
    }
    const bool pump = situation.leg.engine || situation.leg.phase == EPhase::eCranking;
    const bool low = situation.motion.height < 150 && situation.throttle > 12;
    values.fuelPump = {pump ? 1.0 : 0.0, pump && low ? 1.0 : 0.0};
    values.starter = situation.leg.phase == EPhase::eCranking ? 1 : 0;
}

void Instruments::readAmbient(const Situation& situation, RandomSource& random, Snapshot& snapshot) const
{
    AmbientValues& values = snapshot.ambient;
    values.pressure = situation.ambientPressure + random.noise(0.1);
    values.temperature = situation.outsideTemperature + random.noise(0.05);
    const double standard = 15 - 0.0065 * situation.pressureAltitude;
    values.densityAltitude = situation.pressureAltitude + 36.6 * (situation.outsideTemperature - standard);
    values.humidity = std::round(std::clamp(62 + 0.01 * situation.motion.height, 0.0, 100.0));
}

void Instruments::readAir(const Situation& situation, RandomSource& random, AirValues& values) const
{
    const Motion& motion = situation.motion;
    const double through = std::max(0.0, motion.speed + situation.headWind);
    const double density = situation.ambientPressure / 1013.25 * 288.15 / (situation.outsideTemperature + 273.15);
    values.trueSpeed = through > 8 ? through * 3.6 + random.noise(0.5) : 0;
    values.indicatedSpeed = values.trueSpeed * std::sqrt(density);
    values.pressureAltitude = situation.pressureAltitude + random.noise(0.3);
    values.vario = motion.climb + random.noise(0.1);
    values.temperature = situation.outsideTemperature + random.noise(0.1);
    const double side = motion.speed * motion.turnRate * kRadian / 9.81;
    values.acceleration = std::sqrt(1 + side * side) + (motion.airborne ? random.noise(0.06) : random.noise(0.01));
    values.qnh = mQnh;
}

void Instruments::readGps(const Situation& situation, RandomSource& random, GpsValues& values)
{
    const double east = mEastError.step(random);
    const double north = mNorthError.step(random);
    const double altitude = mAltitudeError.step(random);
    const double seconds = situation.seconds;
    if (!mSatellites) {
        // The antenna is covered: now and then a satellite or two, never a time.
        values.satellites = std::fmod(seconds, 40) < 12 ? 1 : 0;
        return;
    }
    values.satellites = std::min(11.0, std::floor(seconds / 7));
    values.fix = seconds < kTimeSeconds ? 0 : (seconds < kFixSeconds ? 1 : (seconds < kHeightFixSeconds ? 2 : 3));
    if (seconds >= kTimeSeconds)
        readGpsTime(situation, values);
    if (seconds < kFixSeconds)
        return;
    const Motion& motion = situation.motion;
    const double perDegreeEast = kMetresPerDegree * std::cos(kFieldLatitude * kRadian);
    values.latitude = degreesAndMinutes(kFieldLatitude + (motion.north + north) / kMetresPerDegree);
    values.longitude = degreesAndMinutes(kFieldLongitude + (motion.east + east) / perDegreeEast);
    values.groundSpeed = std::max(0.0, motion.speed * 3.6 + (motion.speed > 0.1 ? random.noise(0.4) : 0.1));
    values.track = motion.heading;
    if (seconds < kHeightFixSeconds)
        return;
    values.altitude = kFieldElevation + motion.height + altitude;
    values.verticalSpeed = motion.climb + random.noise(0.1);
}

void Instruments::readGpsTime(const Situation& situation, GpsValues& values) const
{
    const qint64 midnight = mPowerUp.time().msecsSinceStartOfDay() / 1000;
    const qint64 second = midnight + saturatingCast<qint64>(situation.seconds);
    const qint64 ofDay = second % 86400;
    values.utcTime = static_cast<double>(ofDay / 3600 * 10000 + ofDay / 60 % 60 * 100 + ofDay % 60);
    const QDate date = mPowerUp.date().addDays(second / 86400);
    values.utcDate = date.day() * 10000 + date.month() * 100 + date.year() % 100;
}

} // namespace ZARN
