#include "card/CycleValues.h"
#include "fuzz/Input.h"
#include "fuzz/MemoryFile.h"
#include "profile/Profile.h"
#include "trace/TraceSet.h"

#include <bit>
#include <cmath>

// Records with times in any order, which the input chooses: what the fast ways tell of them against scans from the first record.

namespace {

using namespace ZARN;

Profile& smallProfile()
{
    static Profile profile(silence());
    static const bool loaded = [] {
        const std::string text =
            R"(<CanAerospaceProfile><UnitConversions><Unit unitMetric="m" unitImperial="ft" factor="3.3" offset="-1"/></UnitConversions><Device name="D">)"
            R"(<Parameter name="a" id="1" dataType="FLOAT" startByte="4" unitMetric="m" unitImperial="ft" factor="0.5"/>)"
            R"(<Parameter name="b" id="2" dataType="BSHORT" startByte="4" startBit="3" endBit="7"/><Parameter name="c" id="3" dataType="LONG" startByte="4"/>)"
            R"(<Parameter name="d" id="1" dataType="UCHAR" startByte="5" offset="2.5"/><Parameter name="n" id="4" dataType="NODATA"/>)"
            R"(<Parameter name="x" id="4" dataType="FLOAT" startByte="4" viewId="Latitude"/></Device></CanAerospaceProfile>)";
        const MemoryFile file(reinterpret_cast<const uint8_t*>(text.data()), text.size());
        return profile.loadProfile(file.path(), "");
    }();
    REQUIRE(loaded);
    return profile;
}

bool same(double a, double b)
{
    return std::bit_cast<uint64_t>(a) == std::bit_cast<uint64_t>(b) || (std::isnan(a) && std::isnan(b));
}

/// @return the end of the recording, in seconds.
double fill(RecordData& data, Input& input)
{
    uint64_t ticks = 0;
    double end = 0.0;
    while (!input.empty()) {
        const uint8_t form = input.byte();
        ticks += input.number<uint32_t>() >> (form >> 4);
        if (form & 8) // back again
            ticks -= std::min<uint64_t>(ticks, input.number<uint32_t>());
        const StoredRecord record{{1, 2, 0, 0, input.byte(), input.byte(), input.byte(), input.byte()}, 0, 0, 0, 0, 0, ticks};
        // A channel of many records is what runs and chunks are for.
        for (int copies = form & 4 ? 1 + input.byte() : 1; copies > 0; --copies)
            REQUIRE(data.append(1 + form % 4, record));
        end = std::max(end, record.time());
    }
    data.buildTimeIndex();
    return end;
}

void requireWalks(const Trace& trace, double from, double to)
{
    std::size_t next = 0;
    trace.forEachRun([&](const TraceRun& run) {
        REQUIRE(run.position == next && run.times.size() == run.numbers.size() && !run.times.empty());
        for (std::size_t i = 0; i < run.times.size(); ++i, ++next)
            REQUIRE(same(run.times[i], trace.time(next)) && same(run.numbers[i], trace.number(next)));
    });
    REQUIRE(next == trace.size());
    std::size_t scanned = 0;
    const auto skip = [&] {
        while (scanned < trace.size() && !(trace.time(scanned) >= from && trace.time(scanned) <= to))
            ++scanned;
    };
    trace.forEachSampleIn(from, to, [&](double time, double number) {
        skip();
        REQUIRE(scanned < trace.size() && same(time, trace.time(scanned)) && same(number, trace.number(scanned)));
        ++scanned;
    });
    skip();
    REQUIRE(scanned == trace.size());
}

void requireValueAt(const RecordData& data, const CycleValues& values, const ProfileParameter& parameter, double time)
{
    const RecordChannel* pChannel = data.channel(static_cast<uint32_t>(parameter.id));
    const std::size_t size = pChannel ? pChannel->entries.size() : 0;
    std::size_t scan = 0;
    while (scan < size && !(pChannel->entries.time(scan) >= time))
        ++scan;
    const bool isInside = time > -1.0 && time < static_cast<double>(values.seconds());
    const auto entry = values.entryAt(parameter, time);
    REQUIRE(entry.has_value() == (isInside && scan < size));
    if (!entry)
        return;
    const StoredRecord& expected = pChannel->entries.stored(scan == 0 ? 0 : scan - 1);
    REQUIRE(entry->stored().payload == expected.payload && entry->stored().ticks == expected.ticks);
    CoordinateFilter filter;
    const ValueDecoder decoder = values.context().decoder(parameter);
    const double value = decoder.isNumeric() ? decoder.toDisplayUnit(decoder.value(expected.payload, true, filter)) : 0.0;
    REQUIRE(same(values.getValue(parameter, time), value));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, std::size_t size)
{
    Input input(pData, size);
    Profile& profile = smallProfile();
    const uint8_t choice = input.byte();
    profile.setCurrentUnit(choice % 2 ? EUnit::eImperial : EUnit::eMetric);
    const double from = input.number<uint16_t>() / 16.0;
    const double to = from + input.number<uint16_t>() / 64.0;
    RecordData data(64 << 20);
    const double end = fill(data, input);
    const DecodingContext context = profile.context();
    const TraceSet traces(&data, context, static_cast<ENumber>(choice / 2 % 4), TraceSet::all());
    for (const auto& pTrace : traces.traces())
        requireWalks(*pTrace, from, to);
    const CycleValues values(data, context, end);
    for (const ProfileDevice& device : profile.data()) {
        for (const ProfileParameter& parameter : device.parameters) {
            for (const double time : {from, to, end, end / 2, 0.0, -0.5, end + 1.5})
                requireValueAt(data, values, parameter, time);
        }
    }
    return 0;
}
