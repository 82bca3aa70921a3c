#include "analysis/HeldPositions.h"

#include "trace/TraceSet.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace ZARN {

namespace {

constexpr double kLeast = 10.0; // seconds: single wrong fixes are what the filter is for

/// @param filter of the pass over both coordinates, in which a fix is believed or not
void addHeld(const RecordData& data, const DecodingContext& context, const char* key, CoordinateFilter& filter, std::vector<TimeSpan>& held)
{
    const ProfileParameter& parameter = context.model().ofZarnType(key);
    if (!parameter.isPosition())
        return;
    const auto pBelieved = TraceSet::one(data, context, parameter, ENumber::eMetric, filter, kLatestTime);
    const auto pReceived = TraceSet::one(data, context, parameter, ENumber::eMetric);
    std::optional<TimeSpan> span;
    const auto end = [&] {
        if (span && span->end - span->start > kLeast)
            held.push_back(*span);
        span.reset();
    };
    double received[Trace::kRun];
    pBelieved->forEachRun([&](const TraceRun& run) {
        pReceived->readNumbers(run.position, std::span(received).first(run.times.size()));
        for (std::size_t i = 0; i < run.times.size(); ++i) {
            if (run.times[i] > kLatestTime)
                continue;
            if (run.numbers[i] == received[i] || std::isnan(received[i]))
                end();
            else if (span)
                span->end = std::max(span->end, run.times[i]);
            else
                span = {run.times[i], run.times[i]};
        }
    });
    end();
}

} // namespace

std::vector<TimeSpan> heldPositions(const RecordData& data, const DecodingContext& context)
{
    std::vector<TimeSpan> held, apart;
    CoordinateFilter filter; // of both: a longitude is judged at the latitude
    addHeld(data, context, "Latitude", filter, held);
    addHeld(data, context, "Longitude", filter, held);
    std::ranges::sort(held, {}, &TimeSpan::start);
    for (const TimeSpan& span : held) {
        if (!apart.empty() && span.start <= apart.back().end)
            apart.back().end = std::max(apart.back().end, span.end);
        else
            apart.push_back(span);
    }
    return apart;
}

} // namespace ZARN
