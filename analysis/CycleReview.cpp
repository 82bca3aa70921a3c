#include "analysis/CycleReview.h"

#include "analysis/FaultEpisodes.h"
#include "analysis/FaultWords.h"
#include "analysis/HeldPositions.h"
#include "analysis/LampEpisodes.h"
#include "analysis/LimitScan.h"
#include "app/Parallel.h"
#include "card/FlightDetector.h"
#include "card/FlightFigures.h"
#include "trace/TraceSet.h"

#include <cmath>
#include <limits>

namespace ZARN {

namespace {

constexpr const char* kLampGroup = "WarningLamp";
constexpr const char* kSpeedKey = "EngineSpeed";

EVerdict verdictOn(const CycleReview& review)
{
    int state = 0;
    for (const Incident& incident : review.incidents)
        state = std::max(state, incident.state);
    if (state > eThresholdOk)
        return state == eThresholdLimit ? EVerdict::eLimit : EVerdict::eWarning;
    return review.withSamples > 0 ? EVerdict::eOk : EVerdict::eUnknown;
}

bool isLamp(const ProfileDevice& device)
{
    return device.name == kLampGroup;
}

/// One review: the steps in the order in which they build on each other.
class ReviewPass {
public:
    /// @param unwatched times that are not watched though the engine ran
    ReviewPass(const CycleValues& values, std::span<const RecordFlight> flights, double endTime,
               const std::vector<TimeSpan>& unwatched = {})
        : mValues(values), mData(values.data()), mContext(values.context()), mFlights(flights), mEndTime(endTime), mEngine(engineRunning(endTime)),
          mPhases(values, mEngine, flights), mLimitTimes(mEngine, unwatched), mLampTimes(mEngine, withChecks(unwatched))
    {
        for (const RecordFlight& flight : flights)
            mTakeOffs.push_back(flight.takeOffTime);
        std::ranges::sort(mTakeOffs);
    }

    CycleReview run(EKeyValues keyValues, EStops stops = EStops::eOfFlights)
    {
        findStops(stops);
        walkParameters(keyValues == EKeyValues::eAll);
        walkFaults();
        tell();
        return std::move(mReview);
    }

private:
    /// A parameter that is walked, and what was found; by one worker, which touches nothing else.
    struct Walk {
        const ProfileDevice& device;
        const ProfileParameter& parameter;
        bool isLimited;
        bool hasKeyValues;
        std::unique_ptr<const Trace> pFixes; // of a position, decoded before: each fix is judged by those before it
        EpisodeList episodes{};
        std::optional<bool> hasSamples{}; // of one that can be outside
        KeyValueTable keyValues{};
    };
    [[nodiscard]] std::unique_ptr<const Trace> trace(const ProfileParameter& parameter, ENumber kind) const
    {
        return TraceSet::one(mData, mContext, parameter, kind);
    }
    /// Null when the profile names no such parameter.
    [[nodiscard]] std::unique_ptr<const Trace> traceOfKey(const char* key) const
    {
        const ProfileParameter parameter = mContext.model().ofZarnType(key);
        return parameter.zarnDataType.empty() ? nullptr : trace(parameter, ENumber::eMetric);
    }

    EngineRunning engineRunning(double endTime)
    {
        const auto pSpeed = traceOfKey(kSpeedKey);
        mReview.hasEngineSpeed = pSpeed != nullptr;
        return pSpeed ? EngineRunning(*pSpeed, endTime) : EngineRunning();
    }

    [[nodiscard]] std::vector<TimeSpan> withChecks(std::vector<TimeSpan> unwatched) const
    {
        const std::vector<TimeSpan> checks = laneChecks(mData, mContext);
        unwatched.insert(unwatched.end(), checks.begin(), checks.end());
        return unwatched;
    }

    void findStops(EStops wanted);
    void walkParameters(bool withKeyValues);
    [[nodiscard]] std::vector<Walk> walks(bool withKeyValues) const;
    void walkLamp(Walk& walk) const;
    void walkValue(Walk& walk, KeyValues& keyValues) const;
    [[nodiscard]] bool hasLimits(const ProfileParameter& parameter) const;
    void walkFaults();
    void count(const std::string& name, bool hasSamples);
    void tell();
    [[nodiscard]] std::optional<double> fuel() const;
    void lookAtParameters();

    CycleReview mReview;
    const CycleValues mValues;
    const RecordData& mData;
    const DecodingContext mContext;
    const std::span<const RecordFlight> mFlights;
    const double mEndTime;
    const EngineRunning mEngine;
    const FlightPhases mPhases;
    const WatchedTimes mLimitTimes;
    const WatchedTimes mLampTimes; // of faults as well
    std::vector<double> mTakeOffs;
    EpisodeList mEpisodes;
};

void ReviewPass::findStops(EStops wanted)
{
    std::vector<RecordFlight> flights(mFlights.begin(), mFlights.end());
    if (const auto unfinished = FlightDetector(mValues).unfinished()) {
        mReview.unfinishedSince = unfinished->takeOffTime;
        flights.push_back(*unfinished); // an engine that stops in the air is told though nobody saw the landing
    }
    if (!mEngine.isKnown())
        return;
    std::vector<TimeSpan> airborne;
    for (const RecordFlight& flight : flights)
        airborne.push_back({std::nextafter(flight.takeOffTime, flight.landingTime), lastBefore(flight.landingTime)});
    const SpanIndex flightAt(airborne);
    const ProfileParameter speed = mContext.model().ofZarnType(kSpeedKey);
    const std::vector<TimeSpan>& stretches = mEngine.stretches();
    for (std::size_t i = 0; i < stretches.size(); ++i) {
        const int flight = flightAt.spanAt(stretches[i].end);
        if (flight == SpanIndex::kNone)
            continue;
        const double landing = flights[static_cast<std::size_t>(flight)].landingTime;
        const double end = i + 1 < stretches.size() ? std::min(stretches[i + 1].start, landing) : landing;
        if (wanted == EStops::eOfFlights && static_cast<std::size_t>(flight) == mFlights.size()) {
            mReview.stopsNotCounted.push_back({stretches[i].end, end});
            continue;
        }
        Episode episode;
        episode.kind = EEpisodeKind::eStop;
        episode.group = mContext.model().devices[static_cast<std::size_t>(speed.deviceIndex - 1)].name;
        episode.parameter = speed.name;
        episode.unit = speed.unitMetric;
        episode.state = eThresholdWarning;
        episode.start = stretches[i].end;
        episode.end = end;
        episode.stateTime = episode.end - episode.start;
        mEpisodes.add(std::move(episode), true);
    }
}

/// Whether values of the parameter can lie outside. Positions are told by view, whatever their type.
bool ReviewPass::hasLimits(const ProfileParameter& parameter) const
{
    const ThresholdList* pThresholds = mContext.decoder(parameter).thresholds();
    return pThresholds && !pThresholds->empty() && parameter.viewId != "Latitude" && parameter.viewId != "Longitude";
}

void ReviewPass::count(const std::string& name, bool hasSamples)
{
    ++mReview.sources;
    if (hasSamples)
        ++mReview.withSamples;
    else
        mReview.missing.push_back(name);
}

std::vector<ReviewPass::Walk> ReviewPass::walks(bool withKeyValues) const
{
    std::vector<Walk> walks;
    CoordinateFilter fixes;
    for (const auto& [device, parameter] : mContext.model().parameters()) {
        Walk walk{device, parameter, !isLamp(device) && hasLimits(parameter), withKeyValues && KeyValues::isWanted(parameter), nullptr};
        if (parameter.isPosition() && walk.hasKeyValues)
            walk.pFixes = TraceSet::one(mData, mContext, parameter, ENumber::eMetric, fixes, kLatestTime);
        if (isLamp(device) || walk.isLimited || walk.hasKeyValues)
            walks.push_back(std::move(walk));
    }
    return walks;
}

void ReviewPass::walkParameters(bool withKeyValues)
{
    std::vector<Walk> all = walks(withKeyValues);
    std::vector<KeyValues> keyValues(kWorkers, KeyValues(mPhases, withKeyValues ? mFlights : std::span<const RecordFlight>()));
    inParallel(all.size() + 1, [&](std::size_t i, std::size_t worker) {
        if (i == all.size()) {
            mReview.heldPositions = heldPositions(mData, mContext);
            return;
        }
        if (isLamp(all[i].device))
            walkLamp(all[i]);
        if (all[i].isLimited || all[i].hasKeyValues)
            walkValue(all[i], keyValues[worker]);
    });
    for (Walk& walk : all) {
        mEpisodes.add(std::move(walk.episodes));
        if (walk.hasSamples)
            count(walk.parameter.name, *walk.hasSamples);
        mReview.keyValues.add(std::move(walk.keyValues));
    }
}

void ReviewPass::walkLamp(Walk& walk) const
{
    walk.hasSamples = LampEpisodes::find(walk.device.name, *trace(walk.parameter, ENumber::eInteger), *trace(walk.parameter, ENumber::eText),
                                         mLampTimes, walk.episodes);
}

void ReviewPass::walkValue(Walk& walk, KeyValues& keyValues) const
{
    const auto pValues = walk.pFixes ? std::move(walk.pFixes) : trace(walk.parameter, ENumber::eMetric);
    if (!pValues->decoder().isNumeric()) {
        if (walk.isLimited)
            walk.hasSamples = false;
        return;
    }
    const auto pTexts = walk.isLimited ? trace(walk.parameter, ENumber::eText) : nullptr;
    std::optional<LimitScan> limits;
    if (pTexts)
        limits.emplace(walk.device.name, *pTexts, mEngine, mTakeOffs, walk.episodes);
    if (walk.hasKeyValues)
        keyValues.begin(walk.device.name, *pValues);
    mLimitTimes.forEachPart(*pValues, [&](int sequence, const WatchedPart& part) {
        if (limits)
            limits->walk(sequence, part);
        if (walk.hasKeyValues)
            keyValues.add(part);
    });
    if (walk.hasKeyValues)
        walk.keyValues = keyValues.end();
    if (limits)
        walk.hasSamples = limits->finish();
}

void ReviewPass::walkFaults()
{
    for (const FaultMatrix& matrix : mContext.model().errorMatrices) {
        if (FaultEpisodes::sources(matrix).empty())
            continue;
        const bool hasSamples = FaultEpisodes::find(matrix, *faultWords(mData, mContext, matrix), mLampTimes, mEpisodes);
        for (const std::string& name : FaultEpisodes::sources(matrix))
            count(name, hasSamples);
    }
}

void ReviewPass::tell()
{
    mReview.engine = mEngine;
    mReview.knowsAltitude = mPhases.knowsAltitude();
    const ProfileParameter& groundSpeed = mContext.model().ofZarnType("GroundSpeed");
    mReview.hasGroundSpeed = !groundSpeed.name.empty();
    mReview.hasAltitude = !mContext.model().ofZarnType("Altitude").name.empty();
    mReview.knowsFlights = !groundSpeed.name.empty() && mData.channel(groundSpeed.identifier());
    mReview.phases = mPhases.steps();
    for (const RecordFlight& flight : mFlights)
        mReview.flightTime += flight.landingTime - flight.takeOffTime;
    mReview.fuel = fuel();
    lookAtParameters();
    mEpisodes.sort();
    mReview.standing = std::move(mEpisodes.standing);
    mReview.incidents = joinIncidents(std::move(mEpisodes.watched), mPhases, mFlights);
    mReview.verdict = verdictOn(mReview);
}

/// What is watched at all, and whose times are damaged: the value at a time is that before the first later sample, so that a damaged time
/// stands in the way of all that come after it.
void ReviewPass::lookAtParameters()
{
    constexpr double kEver = std::numeric_limits<double>::infinity();
    const double damaged = std::nextafter(mEndTime > 0.0 ? std::min(mEndTime, kLatestTime) : kLatestTime, kEver);
    for (const auto& [device, parameter] : mContext.model().parameters()) {
        (device.name == kLampGroup ? mReview.hasLamps : mReview.hasLimits) |= device.name == kLampGroup || hasLimits(parameter);
        const RecordChannel* pChannel = mData.channel(parameter.identifier());
        if (pChannel && !pChannel->entries.ascending() && !pChannel->rangesIn(damaged, kEver).empty())
            mReview.damaged.push_back(parameter.name);
    }
}

/// What flowed through both lanes: a flow per hour, each sample for the time since the one before.
std::optional<double> ReviewPass::fuel() const
{
    std::optional<double> quantity;
    for (const char* key : {"FuelA", "FuelB"}) {
        const auto pFlow = traceOfKey(key);
        std::optional<double> previous;
        if (!pFlow)
            continue;
        pFlow->forEachSample([&](double time, double flow) {
            if (time > kLatestTime)
                return;
            if (previous)
                quantity = quantity.value_or(0.0) + flow * (time - *previous) / 3600;
            previous = time;
        });
    }
    return quantity;
}

} // namespace

const char* verdictKey(EVerdict verdict)
{
    switch (verdict) {
    case EVerdict::eOk: return "ok";
    case EVerdict::eWarning: return "warning";
    case EVerdict::eLimit: return "limit";
    case EVerdict::eUnknown: break;
    }
    return "unknown";
}

CycleReview reviewCycle(const CycleValues& values, std::span<const RecordFlight> flights, double endTime, EKeyValues keyValues, EStops stops)
{
    return ReviewPass(values, flights, endTime).run(keyValues, stops);
}

CycleReview reviewFlight(const CycleReview& cycle, const CycleValues& values, std::span<const RecordFlight> flights,
                         const RecordFlight& flight, double endTime)
{
    constexpr double kForever = std::numeric_limits<double>::infinity();
    const TimeSpan span{flight.startTime, flight.endTime};
    const auto isOutside = [&span](const auto& found) {
        return std::max(found.start, found.end) < span.start || std::min(found.start, found.end) > span.end;
    };
    CycleReview review =
        ReviewPass(values, flights, endTime, {{-kForever, lastBefore(span.start)}, {std::nextafter(span.end, kForever), kForever}})
            .run(EKeyValues::eNone);
    review.engine.crop(span);
    review.unfinishedSince.reset(); // another flight
    review.stopsNotCounted.clear();
    review.flightTime = flight.landingTime - flight.takeOffTime;
    review.fuel = flightFigure(flight, eFigureTotalFuel);
    // Those of the cycle: what goes on before or after the flight is not cut, so that it is told alike everywhere.
    review.incidents = cycle.incidents;
    review.standing = cycle.standing;
    std::erase_if(review.incidents, isOutside);
    std::erase_if(review.standing, isOutside);
    std::erase_if(review.heldPositions, isOutside);
    review.verdict = verdictOn(review);
    return review;
}

} // namespace ZARN
