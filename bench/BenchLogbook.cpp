#include "store/LogbookReader.h"

#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

using namespace ZARN;

/// The store that is measured, made by tools/make-logbook.
const char* store(benchmark::State& state)
{
    const char* pPath = std::getenv("ZARN_LOGBOOK");
    if (!pPath)
        state.SkipWithError("ZARN_LOGBOOK names no store");
    return pPath;
}

/// What stands in the window when it opens: its engines, all flights in order, a page of them.
void open(benchmark::State& state)
{
    const char* pPath = store(state);
    std::size_t flights = 0;
    for (auto _ : state) {
        if (!pPath)
            continue;
        LogbookReader reader(pPath);
        const LogbookSelection all = reader.index().select({}, ELogbookOrder::eDate, true);
        flights = all.flights.size();
        benchmark::DoNotOptimize(reader.engines());
        benchmark::DoNotOptimize(reader.entries(std::span(all.flights).first(std::min<std::size_t>(128, flights))));
    }
    state.counters["flights"] = static_cast<double>(flights);
}

/// The dearest filters: a text that is looked for everywhere, in a span of time, by another order.
void filter(benchmark::State& state)
{
    const char* pPath = store(state);
    if (!pPath)
        return;
    LogbookReader reader(pPath);
    LogbookIndex& index = reader.index();
    const LogbookFilter wanted{{}, QDate(2010, 1, 1), QDate(2026, 12, 31), {}, QStringLiteral("oil")};
    for (auto _ : state)
        benchmark::DoNotOptimize(index.select(wanted, ELogbookOrder::eFuel, true));
}

} // namespace

BENCHMARK(open)->Name("logbook/open")->Unit(benchmark::kMillisecond);
BENCHMARK(filter)->Name("logbook/filter")->Unit(benchmark::kMillisecond);
