#include "card/FlightDetector.h"

#include "trace/TraceSet.h"

namespace ZARN {

namespace {

constexpr double kRollingSpeed = 50.0; // above it the aircraft may be taking off
constexpr double kLandedSpeed = 40.0;  // below it the aircraft may have landed
constexpr int kConfirmations = 10;     // samples that must confirm either
constexpr double kMargin = 30.0;       // seconds that a flight takes in before take-off and after landing

/// Follows the ground speed sample by sample. The comparisons are not symmetric: exactly 50 keeps a roll, exactly 40 a landing.
class FlightState {
public:
    enum class EEvent { eNone, eTakeOff, eLanding };

    EEvent next(double groundSpeed)
    {
        switch (mPhase) {
        case EPhase::eGround: return groundSpeed > kRollingSpeed ? enter(EPhase::eRolling) : EEvent::eNone;
        case EPhase::eRolling:
            if (groundSpeed < kRollingSpeed)
                return enter(EPhase::eGround);
            return confirmed() ? enter(EPhase::eFlying, EEvent::eTakeOff) : EEvent::eNone;
        case EPhase::eFlying: return groundSpeed < kLandedSpeed ? enter(EPhase::eLanding) : EEvent::eNone;
        case EPhase::eLanding:
            if (groundSpeed > kLandedSpeed)
                return enter(EPhase::eFlying);
            return confirmed() ? enter(EPhase::eGround, EEvent::eLanding) : EEvent::eNone;
        }
        return EEvent::eNone;
    }

private:
    enum class EPhase { eGround, eRolling, eFlying, eLanding };

    EEvent enter(EPhase phase, EEvent event = EEvent::eNone)
    {
        mPhase = phase;
        mCount = 0;
        return event;
    }
    bool confirmed() { return mCount++ >= kConfirmations; }

    EPhase mPhase = EPhase::eGround;
    int mCount = 0;
};

/// Calls for each take-off with its landing. @return what unfinished() does
template <typename Visit>
std::optional<RecordFlight> walkFlights(const CycleValues& values, const Visit& visit)
{
    const DecodingContext& context = values.context();
    const auto pSpeed = TraceSet::one(values.data(), context, context.model().ofZarnType("GroundSpeed"), ENumber::eMetric);
    FlightState state;
    std::optional<RecordFlight> flight;
    pSpeed->forEachSample([&](double time, double speed) {
        if (flight && time <= kLatestTime)
            flight->landingTime = std::max(flight->landingTime, time);
        switch (state.next(speed)) {
        case FlightState::EEvent::eTakeOff: 
            flight.emplace();
            flight->takeOffTime = flight->landingTime = time;
            break;
        case FlightState::EEvent::eLanding:
            visit(flight->takeOffTime, time);
            flight.reset();
            break;
        case FlightState::EEvent::eNone: break;
        }
    });
    return flight;
}

} // namespace

std::vector<RecordFlight> FlightDetector::detect(const QDateTime& dateTime) const
{
    std::vector<RecordFlight> flights;
    walkFlights(mValues, [&](double takeOff, double landing) {
        RecordFlight& flight = flights.emplace_back();
        flight.takeOffTime = takeOff;
        flight.startTime = std::max(0.0, takeOff - kMargin);
        flight.dateTime = dateTime.addSecs(saturatingCast<qint64>(takeOff));
        flight.landingTime = landing;
        flight.endTime = landing + kMargin;
        calcFlightStatistic(mValues, flight);
    });
    return flights;
}

std::optional<RecordFlight> FlightDetector::unfinished() const
{
    return walkFlights(mValues, [](double, double) {});
}

} // namespace ZARN
