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

} // namespace

std::vector<RecordFlight> FlightDetector::detect(const QDateTime& dateTime) const
{
    std::vector<RecordFlight> flights;
    const DecodingContext& context = mValues.context();
    const auto pSpeed = TraceSet::one(mValues.data(), context, context.model().ofZarnType("GroundSpeed"), ENumber::eMetric);
    FlightState state;
    RecordFlight flight;
    pSpeed->forEachSample([&](double time, double speed) {
        switch (state.next(speed)) {
        case FlightState::EEvent::eTakeOff:
            flight = {};
            flight.takeOffTime = time;
            flight.startTime = std::max(0.0, time - kMargin);
            flight.dateTime = dateTime.addSecs(saturatingCast<qint64>(time));
            break;
        case FlightState::EEvent::eLanding:
            flight.landingTime = time;
            flight.endTime = time + kMargin;
            calcFlightStatistic(mValues, flight);
            flights.push_back(flight);
            break;
        case FlightState::EEvent::eNone: break;
        }
    });
    return flights;
}

} // namespace ZARN
