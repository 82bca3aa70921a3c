#include "store/CycleRows.h"

#include "store/StoreText.h"

namespace ZARN {

namespace {

using enum EColumn;

constexpr StoreColumn kCycle[] = {
    {"cycle_id", eText},
    {"engine_id", eText},
    {"card_id", eId},
    {"number", eInteger},
    {"date_time", eText},
    {"start_time", eReal},
    {"end_time", eReal},
    {"engine_running", eReal},
    {"flight_time", eReal},
    {"fuel", eReal},
    {"verdict", eText},
    {"sources", eInteger},
    {"sources_with_samples", eInteger},
    {"profile", eText},
    {"profile_hash", eText},
    {"variant", eText},
    {"analysis_version", eInteger},
};

constexpr StoreColumn kFlight[] = {
    {"flight_id", eId},
    {"cycle_id", eText},
    {"number", eInteger},
    {"date_time", eText},
    {"start_time", eReal},
    {"end_time", eReal},
    {"take_off_time", eReal},
    {"landing_time", eReal},
    {"min_altitude", eReal},
    {"max_altitude", eReal},
    {"total_climb", eReal},
    {"average_climb_rate", eReal},
    {"average_descend_rate", eReal},
    {"max_ground_speed", eReal},
    {"fuel_a", eReal},
    {"fuel_b", eReal},
    {"total_fuel", eReal},
    {"time_per100m", eReal},
    {"fuel_per100m", eReal},
    {"take_off_distance", eReal},
    {"take_off_distance15m", eReal},
};

constexpr double RecordFlight::*kFlightNumbers[] = {
    &RecordFlight::startTime,          &RecordFlight::endTime,        &RecordFlight::takeOffTime, &RecordFlight::landingTime,
    &RecordFlight::minAltitude,        &RecordFlight::maxAltitude,    &RecordFlight::totalClimb,  &RecordFlight::averageClimbRate,
    &RecordFlight::averageDescendRate, &RecordFlight::maxGroundSpeed, &RecordFlight::fuelA,       &RecordFlight::fuelB,
    &RecordFlight::totalFuel,          &RecordFlight::timePer100m,    &RecordFlight::fuelPer100m, &RecordFlight::takeOffDistance,
    &RecordFlight::takeOffDistance15m,
};

constexpr StoreColumn kIncident[] = {
    {"incident_id", eId}, {"cycle_id", eText}, {"flight_id", eId}, {"start_time", eReal},
    {"end_time", eReal},  {"state", eInteger}, {"phase", eText},   {"title", eText},
};

constexpr StoreColumn kEpisode[] = {
    {"episode_id", eId},  {"incident_id", eId}, {"cycle_id", eText}, {"kind", eText},       {"device", eText},
    {"parameter", eText}, {"unit", eText},      {"state", eInteger}, {"start_time", eReal}, {"end_time", eReal},
    {"side", eText},      {"boundary", eReal},  {"peak", eReal},     {"peak_time", eReal},  {"text", eText},
};

constexpr StoreColumn kKeyValue[] = {
    {"flight_id", eId}, {"phase", eText},  {"parameter", eText}, {"unit", eText},    {"samples", eInteger}, {"minimum", eReal},
    {"p05", eReal},     {"median", eReal}, {"p95", eReal},       {"maximum", eReal}, {"mean", eReal},
};

constexpr StoreTable kTables[eStoreTables] = {
    {"cycle", "cycles", kCycle},       {"flight", "flights", kFlight},         {"incident", "incidents", kIncident},
    {"episode", "episodes", kEpisode}, {"key_value", "key_values", kKeyValue},
};

FieldValue whole(std::size_t number)
{
    return static_cast<int64_t>(number);
}

Row cycleRow(const CycleFacts& cycle, const AnalysisKey& key, const RowIds& ids)
{
    const CycleReview& review = cycle.review;
    return {cycle.head.id,
            cycle.head.engine.id,
            ids.card,
            int64_t{cycle.head.number},
            textOrNothing(storeDate(cycle.head.dateTime)),
            realOf(cycle.startTime),
            realOf(cycle.endTime),
            realOf(review.engine.duration()),
            realOf(review.flightTime),
            realOf(review.fuel),
            verdictKey(review.verdict),
            whole(review.sources),
            whole(review.withSamples),
            storeText(key.profile),
            key.profileHash,
            storeText(key.variant),
            int64_t{AnalysisKey::kVersion}};
}

Row flightRow(const CycleFacts& cycle, std::size_t place, const RowIds& ids)
{
    const RecordFlight& flight = cycle.flights[place];
    Row row{ids.of(eFlightTable, place), cycle.head.id, whole(place + 1), textOrNothing(storeDate(flight.dateTime))};
    for (const auto number : kFlightNumbers)
        row.push_back(realOf(flight.*number));
    return row;
}

Row episodeRow(const CycleFacts& cycle, const Episode& episode, FieldValue id, FieldValue incident)
{
    const auto& peak = episode.peak;
    return {std::move(id),
            std::move(incident),
            cycle.head.id,
            episodeKindKey(episode.kind),
            storeText(episode.group),
            storeText(episode.parameter),
            storeText(episode.unit),
            int64_t{episode.state},
            realOf(episode.start),
            realOf(episode.end),
            textOrNothing(sideKey(episode.side)),
            peak ? realOf(peak->limit) : FieldValue(),
            peak ? realOf(peak->value) : FieldValue(),
            peak ? realOf(episode.peakTime) : FieldValue(),
            storeText(episode.text)};
}

void addIncidents(CycleRows& rows, const CycleFacts& cycle, const RowIds& ids)
{
    std::vector<Row>& episodes = rows[eEpisodeTable];
    const auto addEpisode = [&](const Episode& episode, const FieldValue& incident) {
        episodes.push_back(episodeRow(cycle, episode, ids.of(eEpisodeTable, episodes.size()), incident));
    };
    for (const Incident& incident : cycle.review.incidents) {
        std::vector<Row>& incidents = rows[eIncidentTable];
        const FieldValue id = ids.of(eIncidentTable, incidents.size());
        const FieldValue flight = incident.flight > 0 ? ids.of(eFlightTable, static_cast<std::size_t>(incident.flight - 1)) : FieldValue();
        incidents.push_back({id, cycle.head.id, flight, realOf(incident.start), realOf(incident.end), int64_t{incident.state},
                             phaseKey(incident.phase), storeText(incident.title())});
        for (const Episode& episode : incident.episodes)
            addEpisode(episode, id);
    }
    for (const Episode& episode : cycle.review.standing)
        addEpisode(episode, {});
}

Row keyValueRow(const KeyValueTable& table, const KeyValue& value, const RowIds& ids)
{
    const KeyValueSource& source = table.sources[value.source];
    const Distribution& values = value.values;
    return {ids.of(eFlightTable, static_cast<std::size_t>(value.flight - 1)),
            phaseKey(value.phase),
            storeText(source.parameter),
            storeText(source.unit),
            whole(values.samples),
            realOf(values.minimum),
            realOf(values.p05),
            realOf(values.median),
            realOf(values.p95),
            realOf(values.maximum),
            realOf(values.mean)};
}

} // namespace

const StoreTable& storeTable(EStoreTable table)
{
    return kTables[table];
}

CycleRows cycleRows(const CycleFacts& cycle, const AnalysisKey& key, const RowIds& ids)
{
    CycleRows rows;
    rows[eCycleTable].push_back(cycleRow(cycle, key, ids));
    for (std::size_t i = 0; i < cycle.flights.size(); ++i)
        rows[eFlightTable].push_back(flightRow(cycle, i, ids));
    addIncidents(rows, cycle, ids);
    for (const KeyValue& value : cycle.review.keyValues.values)
        rows[eKeyValueTable].push_back(keyValueRow(cycle.review.keyValues, value, ids));
    return rows;
}

} // namespace ZARN
