#include "cli/SummaryJson.h"

namespace ZARN {

namespace {

template <typename Value> void writeOptional(JsonWriter& writer, const char* key, const std::optional<Value>& value)
{
    writer.key(key);
    value ? writer.value(*value) : writer.null();
}

void writeEpisode(JsonWriter& writer, const Episode& episode)
{
    writer.beginObject().member("kind", episodeKindKey(episode.kind)).member("group", episode.group).member("parameter", episode.parameter);
    writer.member("unit", episode.unit)
        .member("state", episode.state)
        .member("start", episode.start)
        .member("end", episode.end)
        .key("side");
    episode.side == ESide::eNone ? writer.null() : writer.value(sideKey(episode.side));
    const auto& peak = episode.peak;
    writeOptional(writer, "limit", peak ? std::optional(peak->limit) : std::nullopt);
    writeOptional(writer, "peak", peak ? std::optional(peak->value) : std::nullopt);
    writeOptional(writer, "peakTime", peak ? std::optional(episode.peakTime) : std::nullopt);
    writer.member("text", episode.text).endObject();
}

void writeEpisodes(JsonWriter& writer, const char* key, const std::vector<Episode>& episodes)
{
    writer.key(key).beginArray();
    for (const Episode& episode : episodes)
        writeEpisode(writer, episode);
    writer.endArray();
}

void writeIncident(JsonWriter& writer, const Incident& incident)
{
    writer.beginObject().member("start", incident.start).member("end", incident.end).member("state", incident.state);
    writer.member("phase", phaseKey(incident.phase));
    writeOptional(writer, "flight", incident.flight > 0 ? std::optional(incident.flight) : std::nullopt);
    writer.member("title", incident.title());
    writeEpisodes(writer, "episodes", incident.episodes);
    writer.endObject();
}

} // namespace

void writeJudgement(JsonWriter& writer, const TrendJudgement& judgement)
{
    const Distribution& band = judgement.band;
    writer.key("band");
    if (band.samples == 0) {
        writer.null();
    } else {
        writer.beginObject().member("flights", static_cast<int64_t>(band.samples)).member("p05", band.p05).member("median", band.median);
        writer.member("p95", band.p95).endObject();
    }
    writeOptional(writer, "z", judgement.z);
    writer.member("unusual", judgement.isUnusual).member("drifting", judgement.isDrifting);
}

void writeReview(JsonWriter& writer, const CycleReview& review, const std::vector<UnusualFigure>& unusual)
{
    writeOptional(writer, "engineRunning", review.engine.duration());
    writer.member("flightTime", review.flightTime);
    writeOptional(writer, "fuel", review.fuel);
    writer.member("verdict", verdictKey(review.verdict)).key("watched").beginObject();
    writer.member("sources", static_cast<int64_t>(review.sources))
        .member("withSamples", static_cast<int64_t>(review.withSamples))
        .endObject();
    writer.key("incidents").beginArray();
    for (const Incident& incident : review.incidents)
        writeIncident(writer, incident);
    writer.endArray();
    writeEpisodes(writer, "standing", review.standing);
    writer.key("unusual").beginArray();
    for (const UnusualFigure& one : unusual) {
        writer.beginObject().member("flight", one.flight).member("group", one.source.group).member("parameter", one.source.parameter);
        writer.member("unit", one.source.unit).member("phase", phaseKey(one.phase)).member("median", one.median);
        writeJudgement(writer, one.judgement);
        writer.endObject();
    }
    writer.endArray();
}

} // namespace ZARN
