#include "card/FlightDetector.h"
#include "card/Geography.h"
#include "trace/TraceSet.h"

#include <cmath>
#include <limits>

namespace ZARN {

namespace {

constexpr double kFullThrottle = 90.0;
constexpr double kReferenceSpeed = 80.0;  // the ground's altitude is taken when the ground speed passes it
constexpr double kSmallestAltitude = 0.1; // below it the receiver had no fix
constexpr double kLiftOffHeight = 1.0;
constexpr double kObstacleHeight = 15.0;

constexpr double kNoFix = 0.0001; // degrees: a receiver without a fix tells 0

struct Position {
    double latitude = 0.0;
    double longitude = 0.0;
    bool isKnown = false;
};

/// One computation of a tow statistic: the steps in the order in which the numbers build on each other.
class StatisticPass {
public:
    StatisticPass(const CycleValues& values, RecordFlight& flight) : mValues(values.metric()), mFlight(flight) {}

    void run()
    {
        findRollStart();
        mFlight.fuelA = fuel("FuelA", mFlight.hasFuelA);
        mFlight.fuelB = fuel("FuelB", mFlight.hasFuelB);
        mFlight.totalFuel = mFlight.fuelA + mFlight.fuelB;
        scanGroundSpeed();
        scanAltitude();
        computeRates();
        mFlight.takeOffDistance = distanceTo(mLiftOff);
        mFlight.takeOffDistance15m = distanceTo(mObstacle);
        mFlight.valid = true;
    }

private:
    /// Calls `visit` with time and value of every sample of the parameter in the flight's span, in order.
    template <typename Visitor> void forEachSample(const char* key, Visitor visit) const
    {
        TraceSet::one(mValues.data(), mValues.context(), parameter(key), ENumber::eMetric)
            ->forEachSampleIn(mFlight.startTime, mFlight.endTime, visit);
    }

    [[nodiscard]] const ProfileParameter& parameter(const char* key) const { return mValues.context().model().ofZarnType(key); }
    [[nodiscard]] double valueAt(const char* key, double time) const { return mValues.getValue(parameter(key), time); }
    [[nodiscard]] bool hasValueAt(const char* key, double time) const { return mValues.entryAt(parameter(key), time).has_value(); }

    [[nodiscard]] Position positionAt(double time) const
    {
        Position position{valueAt("Latitude", time), valueAt("Longitude", time)};
        position.isKnown = hasValueAt("Latitude", time) && hasValueAt("Longitude", time) &&
                           (std::abs(position.latitude) > kNoFix || std::abs(position.longitude) > kNoFix);
        return position;
    }

    void findRollStart()
    {
        bool found = false;
        forEachSample("ThrottleA", [&](double time, double throttle) {
            if (!found && throttle > kFullThrottle) {
                found = true;
                mRollStart = positionAt(time);
            }
        });
        mFlight.hasRollStart = mRollStart.isKnown;
    }

    /// A flow per hour integrated to a quantity.
    [[nodiscard]] double fuel(const char* key, bool& isKnown) const
    {
        isKnown = false;
        double quantity = 0.0;
        double previous = std::numeric_limits<double>::quiet_NaN();
        forEachSample(key, [&](double time, double flow) {
            if (!std::isnan(previous)) {
                quantity += flow * (time - previous) / 3600;
                isKnown = true;
            }
            previous = time;
        });
        return quantity;
    }

    void scanGroundSpeed()
    {
        bool found = false;
        mFlight.maxGroundSpeed = 0.0;
        forEachSample("GroundSpeed", [&](double time, double speed) {
            mFlight.maxGroundSpeed = std::max(mFlight.maxGroundSpeed, speed);
            if (!found && speed > kReferenceSpeed) {
                found = true;
                mReferenceTime = time;
                mReferenceAltitude = valueAt("Altitude", time);
                mHasReference = hasValueAt("Altitude", time) && mReferenceAltitude >= kSmallestAltitude;
            }
        });
    }

    void scanAltitude()
    {
        bool first = true;
        bool liftedOff = false;
        bool clearOfObstacle = false;
        mFlight.hasSummit = false;
        mFlight.minAltitude = mFlight.maxAltitude = 0.0;
        forEachSample("Altitude", [&](double time, double altitude) {
            if (altitude < kSmallestAltitude)
                return;
            const double height = altitude - mReferenceAltitude;
            if (!liftedOff && height > kLiftOffHeight && time > mReferenceTime) {
                liftedOff = true;
                mLiftOff = positionAt(time);
            }
            if (!clearOfObstacle && height > kObstacleHeight && time > mReferenceTime) {
                clearOfObstacle = true;
                mObstacle = positionAt(time);
            }
            if (first) {
                mFlight.minAltitude = mFlight.maxAltitude = altitude;
                first = false;
            } else if (altitude > mFlight.maxAltitude) {
                mFlight.maxAltitude = altitude;
                mHighestTime = time; // stays 0 when the first sample is the highest
                mFlight.hasSummit = true;
            }
            mFlight.minAltitude = std::min(mFlight.minAltitude, altitude);
        });
        mFlight.hasAltitude = !first;
        mFlight.hasLiftOff = mHasReference && mLiftOff.isKnown;
        mFlight.hasObstacle = mHasReference && mObstacle.isKnown;
    }

    void computeRates()
    {
        mFlight.totalClimb = mFlight.maxAltitude - mFlight.minAltitude;
        mFlight.averageClimbRate = mFlight.totalClimb / (mHighestTime - mFlight.takeOffTime);
        mFlight.averageDescendRate = mFlight.totalClimb / (mFlight.landingTime - mHighestTime);
        mFlight.timePer100m = (mFlight.landingTime - mFlight.takeOffTime) / mFlight.totalClimb * 100;
        mFlight.fuelPer100m = mFlight.totalFuel / mFlight.totalClimb * 100;
    }

    [[nodiscard]] double distanceTo(const Position& position) const
    {
        return calcDistance(mRollStart.latitude, mRollStart.longitude, position.latitude, position.longitude);
    }

    const CycleValues mValues;
    RecordFlight& mFlight;
    Position mRollStart;
    Position mLiftOff;
    Position mObstacle;
    double mReferenceTime = 0.0;
    double mReferenceAltitude = 0.0;
    bool mHasReference = false;
    double mHighestTime = 0.0;
};

} // namespace

void calcFlightStatistic(const CycleValues& values, RecordFlight& flight)
{
    StatisticPass(values, flight).run();
}

} // namespace ZARN
