#include "analysis/HeldFixes.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace ZARN {

namespace {

constexpr double kLeast = 10.0; // seconds: single wrong fixes are what the filter is for

void addHeld(const RecordData& data, const DecodingContext& context, const char* key, CoordinateFilter& filter, std::vector<TimeSpan>& held)
{
    const ProfileParameter& parameter = context.model().ofZarnType(key);
    const RecordChannel* pChannel = parameter.isPosition() ? data.channel(parameter.identifier()) : nullptr;
    const ValueDecoder decoder = context.decoder(parameter);
    if (!pChannel || !decoder.isNumeric())
        return;
    std::optional<TimeSpan> span;
    const auto end = [&] {
        if (span && span->end - span->start > kLeast)
            held.push_back(*span);
        span.reset();
    };
    for (std::size_t chunk = 0; chunk < pChannel->entries.chunkCount(); ++chunk) {
        for (const StoredRecord& record : pChannel->entries.chunk(chunk)) {
            if (record.time() > kLatestTime)
                continue;
            CoordinateFilter alone;
            const double believed = decoder.value(record.payload, true, filter), received = decoder.value(record.payload, true, alone);
            if (believed == received || std::isnan(received))
                end();
            else if (span)
                span->end = std::max(span->end, record.time());
            else
                span = {record.time(), record.time()};
        }
    }
    end();
}

} // namespace

std::vector<TimeSpan> heldFixes(const RecordData& data, const DecodingContext& context)
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
