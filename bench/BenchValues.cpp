#include "analysis/CycleReview.h"
#include "analysis/LimitEvents.h"
#include "analysis/WarningEvents.h"
#include "app/Console.h"
#include "app/FusedMultiplyAdd.h"
#include "app/NumberText.h"
#include "app/Progress.h"
#include "app/SafeFile.h"
#include "bench/BenchCard.h"
#include "card/CardContainer.h"
#include "card/record/ByteOrder.h"
#include "export/ExportCsv.h"
#include "profile/Profile.h"
#include "trace/TraceSet.h"
#include "trace/ComputedChannel.h"

#include <benchmark/benchmark.h>

#include <QFile>

#include <random>

namespace ZARN {

namespace {

constexpr std::size_t kEntries = 10000000;
constexpr const char* kProfile = "<CanAerospaceProfile><Device name=\"d\"><Parameter name=\"v\" id=\"1\" startByte=\"4\" factor=\"1.5\" "
                                 "offset=\"2\" dataType=\"FLOAT\"/></Device></CanAerospaceProfile>";

const Console& silent()
{
    static const Console console([](std::string_view) {}, [](std::string_view) {});
    return console;
}

StoredRecord floatRecord(std::size_t i, uint64_t ticks)
{
    StoredRecord record{};
    const uint32_t word = __builtin_bswap32(std::bit_cast<uint32_t>(static_cast<float>(2300 + 2300 * std::sin(static_cast<double>(i) * 1e-5))));
    std::memcpy(record.payload.data() + 4, &word, 4);
    record.ticks = ticks;
    return record;
}

/// One channel of 50 Hz and a profile for it. @param restarts true: the tick counter falls back now and then.
struct Channel {
    explicit Channel(std::size_t entries, bool restarts = false) : profile(silent())
    {
        QDomDocument document;
        document.setContent(QString(kProfile));
        profile.loadDocument(document.documentElement(), "");
        for (std::size_t i = 0; i < entries; ++i)
            data.append(1, floatRecord(i, (i - (restarts && i % 1000 > 500 ? 300 : 0)) * 640000));
        data.buildTimeIndex();
    }
    const ProfileParameter& parameter() const { return profile.model().parameter(1); }

    Profile profile;
    RecordData data;
};

/// The floor of decoding: one loop over side-by-side records.
ZARN_FUSED_MULTIPLY_ADD void decodePlain(const std::vector<StoredRecord>& records, double* pOut)
{
    for (const StoredRecord& record : records)
        *pOut++ = std::fma(1.5, static_cast<double>(std::bit_cast<float>(loadBigEndian<uint32_t>(record.payload.data() + 4))), 2.0);
}

void decodeFloor(benchmark::State& state)
{
    std::vector<StoredRecord> records;
    for (std::size_t i = 0; i < kEntries; ++i)
        records.push_back(floatRecord(i, i * 640000));
    std::vector<double> out(kEntries);
    for (auto _ : state) {
        decodePlain(records, out.data());
        benchmark::ClobberMemory();
    }
}

void decodeChannel(benchmark::State& state)
{
    const Channel channel(kEntries);
    std::vector<double> out(kEntries);
    const RecordEntries& entries = channel.data.channel(1)->entries;
    for (auto _ : state) {
        const ValueDecoder decoder = channel.profile.context().decoder(channel.parameter());
        CoordinateFilter filter;
        double* pOut = out.data();
        for (std::size_t i = 0; i < entries.chunkCount(); ++i) {
            decoder.values(entries.chunk(i), pOut, filter);
            pOut += entries.chunk(i).size();
        }
        benchmark::ClobberMemory();
    }
}

/// Two channels of the same pace, and a formula over them.
struct Operands {
    Operands() : profile(silent())
    {
        QDomDocument document;
        document.setContent(QString(kProfile).replace("</Device>", "<Parameter name=\"w\" id=\"2\" startByte=\"4\" dataType=\"FLOAT\"/></Device>"));
        profile.loadDocument(document.documentElement(), "");
        for (std::size_t i = 0; i < kEntries; ++i) {
            data.append(1, floatRecord(i, i * 640000));
            data.append(2, floatRecord(i / 3, i * 640000));
        }
        data.buildTimeIndex();
    }
    Profile profile;
    RecordData data;
};

void decodeOperands(benchmark::State& state)
{
    const Operands operands;
    for (auto _ : state) {
        const TraceSet traces(&operands.data, operands.profile, ENumber::eMetric, TraceSet::all());
        for (const auto& pTrace : traces.traces())
            pTrace->forEachRun([](const TraceRun& run) { benchmark::DoNotOptimize(run.numbers.data()); });
    }
}

void computeDifference(benchmark::State& state)
{
    const Operands operands;
    const DecodingContext& context = operands.profile;
    Formula formula("v - w", context.model());
    for (auto _ : state) {
        double sum = 0;
        evaluate(formula, operands.data, context, [&sum](uint64_t, double value) { sum += value; });
        benchmark::DoNotOptimize(sum);
    }
}

/// The same with the memory for it, as a view asks for it first.
void makeDifference(benchmark::State& state)
{
    Operands operands;
    for (auto _ : state) {
        operands.profile.setFormulas({});
        operands.profile.setFormulas({{"d", "v - w", "", 2, {}, {}, {}, {}}});
        const DecodingContext& context = operands.profile;
        benchmark::DoNotOptimize(channelOf(operands.data, context, *context.model().find("d")));
    }
}

void valueAtTime(benchmark::State& state)
{
    const auto entries = static_cast<std::size_t>(state.range(0));
    const Channel channel(entries, state.range(1) != 0);
    const CycleValues values(channel.data, channel.profile, static_cast<double>(entries) * 0.02);
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> time(0, static_cast<double>(entries) * 0.02);
    for (auto _ : state)
        benchmark::DoNotOptimize(values.getValue(channel.parameter(), time(random)));
}

std::vector<float> someFloats()
{
    std::mt19937 random(1);
    std::uniform_real_distribution<float> number(-512, 3584);
    std::vector<float> floats(100000);
    for (float& value : floats)
        value = number(random);
    return floats;
}

void textSnprintf(benchmark::State& state)
{
    const std::vector<float> floats = someFloats();
    char buffer[64];
    for (auto _ : state) {
        for (const float value : floats)
            benchmark::DoNotOptimize(std::snprintf(buffer, sizeof buffer, "%.*f", 2, static_cast<double>(value)));
    }
}

void textFixed(benchmark::State& state)
{
    const std::vector<float> floats = someFloats();
    char buffer[kNumberTextSize];
    for (auto _ : state) {
        for (const float value : floats)
            benchmark::DoNotOptimize(writeFixed(buffer, static_cast<double>(value), 2));
    }
}

/// A loaded card.
struct MeasuredCard {
    explicit MeasuredCard(std::size_t records, const std::string& path = BenchCard::profile())
        : profile(silent()), container(silent(), profile, nullProgress())
    {
        profile.loadProfile(QString::fromStdString(path), "");
        container.readContainer(QString::fromStdString(BenchCard::folder(records)));
        container.loadCycle(0, -1);
    }
    Profile profile;
    CardContainer container;
};

void csv(benchmark::State& state)
{
    MeasuredCard card(kEntries);
    CsvExportOptions options;
    options.resolution = static_cast<uint32_t>(state.range(0));
    for (auto _ : state) {
        SafeFile file("/dev/null");
        benchmark::DoNotOptimize(ExportCsv(card.profile).writeFile(file, card.container.recordData(), options));
    }
}

/// Incidents, phases and key values of a loaded cycle.
void reviewFacts(benchmark::State& state)
{
    MeasuredCard card(kEntries, BenchCard::engineProfile());
    const std::vector<RecordFlight>& flights = card.container.loadedCycle()->flights;
    const auto review = [&] { return reviewCycle(card.container.values(), flights, card.container.endTime(), EKeyValues::eAll); };
    // What the recording does not hold costs nothing to find.
    const CycleReview found = review();
    if (flights.empty() || found.incidents.empty() || found.phases.size() < flights.size() || found.keyValues.values.empty())
        return state.SkipWithError("the recording lacks flights, incidents, phases or key values");
    for (auto _ : state)
        benchmark::DoNotOptimize(review().incidents.size());
    state.counters["flights"] = static_cast<double>(flights.size());
    state.counters["incidents"] = static_cast<double>(found.incidents.size());
    state.counters["keyValues"] = static_cast<double>(found.keyValues.values.size());
}

/// What else is derived from a loaded cycle before a view shows it.
void listedFacts(benchmark::State& state)
{
    MeasuredCard card(kEntries);
    const RecordData& data = card.container.recordData();
    RecordCycle cycle = card.container.recordCycles().begin()->second;
    for (auto _ : state) {
        card.container.calcFlightPath();
        card.container.calcFlights(cycle);
        benchmark::DoNotOptimize(limitEvents(data, card.profile).events().size());
        benchmark::DoNotOptimize(warningEvents(data, card.profile).events().size());
    }
}

BENCHMARK(decodeFloor)->Name("decode/floor")->Unit(benchmark::kMillisecond);
BENCHMARK(decodeChannel)->Name("decode/channel")->Unit(benchmark::kMillisecond);
BENCHMARK(decodeOperands)->Name("formula/operands")->Unit(benchmark::kMillisecond);
BENCHMARK(computeDifference)->Name("formula/difference")->Unit(benchmark::kMillisecond);
BENCHMARK(makeDifference)->Name("formula/channel")->Unit(benchmark::kMillisecond);
BENCHMARK(valueAtTime)->Name("value/at")->Args({1000000, 0})->Args({10000000, 0})->Args({1000000, 1})->Args({10000000, 1});
BENCHMARK(textSnprintf)->Name("text/snprintf")->Unit(benchmark::kMillisecond);
BENCHMARK(textFixed)->Name("text/fixed")->Unit(benchmark::kMillisecond);
BENCHMARK(reviewFacts)->Name("facts/review")->MeasureProcessCPUTime()->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(listedFacts)->Name("facts/lists")->Unit(benchmark::kMillisecond);
BENCHMARK(csv)->Name("csv/ms")->Arg(100)->Arg(10)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace ZARN
