#include "analysis/CycleReview.h"

#include "analysis/FaultEpisodes.h"
#include "analysis/FaultWords.h"
#include "analysis/LampEpisodes.h"
#include "analysis/LimitScan.h"
#include "card/FlightFigures.h"
#include "trace/TraceSet.h"

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
        : mData(values.data()), mContext(values.context()), mFlights(flights), mEngine(engineRunning(endTime)),
          mPhases(values, mEngine, flights), mLimitTimes(mEngine, unwatched), mLampTimes(mEngine, withChecks(unwatched))
    {
        for (const RecordFlight& flight : flights)
            mTakeOffs.push_back(flight.takeOffTime);
        std::ranges::sort(mTakeOffs);
    }

    CycleReview run(EKeyValues keyValues)
    {
        const auto pKeyValues = keyValues == EKeyValues::eAll ? std::make_unique<KeyValues>(mPhases, mFlights) : nullptr;
        findStops();
        walkValues(pKeyValues.get());
        walkFaults();
        tell();
        if (pKeyValues)
            mReview.keyValues = pKeyValues->take();
        return std::move(mReview);
    }

private:
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

    void findStops();
    void walkValues(KeyValues* pKeyValues);
    void walkLamp(const std::string& group, const ProfileParameter& parameter);
    void walkValue(const ProfileDevice& device, const ProfileParameter& parameter, KeyValues* pKeyValues);
    [[nodiscard]] bool hasLimits(const ProfileParameter& parameter) const;
    void walkFaults();
    void count(const std::string& name, bool hasSamples);
    void tell();
    [[nodiscard]] std::optional<double> fuel() const;

    CycleReview mReview;
    const RecordData& mData;
    const DecodingContext mContext;
    const std::span<const RecordFlight> mFlights;
    const EngineRunning mEngine;
    const FlightPhases mPhases;
    const WatchedTimes mLimitTimes;
    const WatchedTimes mLampTimes; // of faults as well
    std::vector<double> mTakeOffs;
    CoordinateFilter mFixes;
    EpisodeList mEpisodes;
};

void ReviewPass::findStops()
{
    if (!mEngine.isKnown())
        return;
    std::vector<TimeSpan> airborne;
    for (const RecordFlight& flight : mFlights)
        airborne.push_back({std::nextafter(flight.takeOffTime, flight.landingTime), lastBefore(flight.landingTime)});
    const SpanIndex flightAt(airborne);
    const ProfileParameter speed = mContext.model().ofZarnType(kSpeedKey);
    const std::vector<TimeSpan>& stretches = mEngine.stretches();
    for (std::size_t i = 0; i < stretches.size(); ++i) {
        const int flight = flightAt.spanAt(stretches[i].end);
        if (flight == SpanIndex::kNone)
            continue;
        const double landing = mFlights[static_cast<std::size_t>(flight)].landingTime;
        Episode episode;
        episode.kind = EEpisodeKind::eStop;
        episode.group = mContext.model().devices[static_cast<std::size_t>(speed.deviceIndex - 1)].name;
        episode.parameter = speed.name;
        episode.unit = speed.unitMetric;
        episode.state = eThresholdWarning;
        episode.start = stretches[i].end;
        episode.end = i + 1 < stretches.size() ? std::min(stretches[i + 1].start, landing) : landing;
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

void ReviewPass::walkValues(KeyValues* pKeyValues)
{
    for (const ProfileDevice& device : mContext.model().devices) {
        for (const ProfileParameter& parameter : device.parameters) {
            const bool hasKeyValues = pKeyValues && KeyValues::isWanted(parameter);
            if (isLamp(device))
                walkLamp(device.name, parameter);
            if (hasKeyValues || (!isLamp(device) && hasLimits(parameter)))
                walkValue(device, parameter, hasKeyValues ? pKeyValues : nullptr);
        }
    }
}

void ReviewPass::walkLamp(const std::string& group, const ProfileParameter& parameter)
{
    const bool hasSamples =
        LampEpisodes::find(group, *trace(parameter, ENumber::eInteger), *trace(parameter, ENumber::eText), mLampTimes, mEpisodes);
    count(parameter.name, hasSamples);
}

void ReviewPass::walkValue(const ProfileDevice& device, const ProfileParameter& parameter, KeyValues* pKeyValues)
{
    const auto pValues = TraceSet::one(mData, mContext, parameter, ENumber::eMetric, mFixes, kLatestTime); // positions: for key values alone
    const bool isLimited = !isLamp(device) && hasLimits(parameter);
    if (!pValues->decoder().isNumeric()) {
        if (isLimited)
            count(parameter.name, false);
        return;
    }
    const auto pTexts = isLimited ? trace(parameter, ENumber::eText) : nullptr;
    std::optional<LimitScan> limits;
    if (pTexts)
        limits.emplace(device.name, *pTexts, mEngine, mTakeOffs, mEpisodes);
    if (pKeyValues)
        pKeyValues->begin(device.name, *pValues);
    mLimitTimes.forEachPart(*pValues, [&](int sequence, const TraceRun& part) {
        if (limits)
            limits->walk(sequence, part);
        if (pKeyValues)
            pKeyValues->add(part);
    });
    if (pKeyValues)
        pKeyValues->end();
    if (limits)
        count(parameter.name, limits->finish());
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
    mReview.knowsFlights = !groundSpeed.name.empty() && mData.channel(groundSpeed.identifier());
    mReview.phases = mPhases.steps();
    for (const RecordFlight& flight : mFlights)
        mReview.flightTime += flight.landingTime - flight.takeOffTime;
    mReview.fuel = fuel();
    mEpisodes.sort();
    mReview.standing = std::move(mEpisodes.standing);
    mReview.incidents = joinIncidents(std::move(mEpisodes.watched), mPhases, mFlights);
    mReview.verdict = verdictOn(mReview);
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

CycleReview reviewCycle(const CycleValues& values, std::span<const RecordFlight> flights, double endTime, EKeyValues keyValues)
{
    return ReviewPass(values, flights, endTime).run(keyValues);
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
    review.flightTime = flight.landingTime - flight.takeOffTime;
    review.fuel = flightFigure(flight, eFigureTotalFuel);
    // Those of the cycle: what goes on before or after the flight is not cut, so that it is told alike everywhere.
    review.incidents = cycle.incidents;
    review.standing = cycle.standing;
    std::erase_if(review.incidents, isOutside);
    std::erase_if(review.standing, isOutside);
    review.verdict = verdictOn(review);
    return review;
}

} // namespace ZARN
