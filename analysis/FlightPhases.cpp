#include "analysis/FlightPhases.h"

#include "trace/TraceSet.h"

namespace ZARN {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

SpanIndex runningSpans(const EngineRunning& engine)
{
    std::vector<TimeSpan> spans = engine.stretches();
    for (TimeSpan& span : spans)
        span.end = engine.isKnown() ? lastBefore(span.end) : span.end;
    return SpanIndex(spans);
}

SpanIndex airborneSpans(std::span<const RecordFlight> flights)
{
    std::vector<TimeSpan> spans;
    for (const RecordFlight& flight : flights)
        spans.push_back({flight.takeOffTime, flight.landingTime});
    return SpanIndex(spans);
}

SpanIndex takeOffSpans(std::span<const RecordFlight> flights)
{
    std::vector<TimeSpan> spans;
    for (const RecordFlight& flight : flights)
        spans.push_back({flight.startTime, lastBefore(flight.takeOffTime)});
    return SpanIndex(spans);
}

VerticalSteps verticalSteps(const CycleValues& values)
{
    const DecodingContext& context = values.context();
    const ProfileParameter altitude = context.model().ofZarnType("Altitude");
    if (altitude.zarnDataType.empty())
        return {};
    return {*TraceSet::one(values.data(), context, altitude, ENumber::eMetric), values.seconds()};
}

EFlightPhase airbornePhase(EVertical vertical)
{
    switch (vertical) {
    case EVertical::eClimb: return EFlightPhase::eClimb;
    case EVertical::eDescent: return EFlightPhase::eDescent;
    case EVertical::eLevel: break;
    }
    return EFlightPhase::eLevel;
}

} // namespace

const char* phaseKey(EFlightPhase phase)
{
    switch (phase) {
    case EFlightPhase::eOff: return "off";
    case EFlightPhase::eGround: return "ground";
    case EFlightPhase::eTakeOff: return "take-off";
    case EFlightPhase::eClimb: return "climb";
    case EFlightPhase::eLevel: return "level";
    case EFlightPhase::eDescent: return "descent";
    }
    return "";
}

FlightPhases::FlightPhases(const CycleValues& values, const EngineRunning& engine, std::span<const RecordFlight> flights)
{
    const SpanIndex running = runningSpans(engine), airborne = airborneSpans(flights), takeOff = takeOffSpans(flights);
    const VerticalSteps vertical = flights.empty() ? VerticalSteps() : verticalSteps(values);
    mKnowsAltitude = flights.empty() || vertical.isKnown();
    for (double from = -kInfinity; from < kInfinity;) {
        const double next = std::nextafter(from, kInfinity);
        const SpanIndex::Step &on = running.at(next), &inAir = airborne.at(next), &before = takeOff.at(next);
        const double until = std::min({on.until, inAir.until, before.until});
        if (on.span == SpanIndex::kNone)
            addStep(until, EFlightPhase::eOff);
        else if (inAir.span == SpanIndex::kNone)
            addStep(until, before.span == SpanIndex::kNone ? EFlightPhase::eGround : EFlightPhase::eTakeOff);
        else
            vertical.forEachIn(from, until, [this](double end, EVertical what) { addStep(end, airbornePhase(what)); });
        from = until;
    }
}

void FlightPhases::addStep(double until, EFlightPhase phase)
{
    if (!mSteps.empty() && mSteps.back().phase == phase)
        mSteps.back().until = until;
    else
        mSteps.push_back({mSteps.empty() ? -kInfinity : mSteps.back().until, until, phase});
}

EFlightPhase FlightPhases::at(double seconds) const
{
    const auto found = std::ranges::lower_bound(mSteps, seconds, {}, &Step::until);
    return found == mSteps.end() ? EFlightPhase::eOff : found->phase;
}

} // namespace ZARN
