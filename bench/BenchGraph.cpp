// The graph with thirty traces: rebuilding what a window shows, whole frames, memory. Frames need a display.

#include "bench/BenchApplication.h"
#include "bench/GraphTraces.h"
#include "ui/graph/WidgetGraphES.h"

#include <benchmark/benchmark.h>

#include <QApplication>

namespace ZARN {

namespace {

constexpr std::size_t kPiece = 100000;

void fill(GraphModel& model, std::size_t samples)
{
    model.traces().setCount(kTraces);
    model.setOfflineMode(true);
    model.settings().graphMode = eManual;
    std::vector<double> times, values;
    for (int trace = 0; trace < kTraces; ++trace) {
        model.traces().setActive(trace, true);
        model.traces().setName(trace, QString("Trace %1").arg(trace), "kPa");
        model.traces().reserve(trace, samples);
        const auto put = [&] {
            model.putValues(trace, times, values);
            times.clear();
            values.clear();
        };
        walk(trace, samples, [&](double time, float value) {
            times.push_back(time);
            values.push_back(static_cast<double>(value));
            if (times.size() == kPiece)
                put();
        });
        put();
    }
}

void rebuild(benchmark::State& state)
{
    GraphModel model;
    fill(model, static_cast<std::size_t>(state.range(0)));
    FrameCache cache;
    const Span window = windowOf(static_cast<std::size_t>(state.range(0)), true);
    double shift = 0;
    int step = 0;
    std::size_t bytes = 0;
    for (const GraphParameter& parameter : model.traces().all())
        bytes += parameter.samples.bytes();
    for (auto _ : state) {
        shift = pan(window, step++);
        model.setWindow({window.begin + shift, window.end + shift});
        cache.update(model.traces(), model.window(), kColumns);
    }
    state.counters["bytes_a_sample"] = static_cast<double>(bytes) / static_cast<double>(state.range(0)) / kTraces;
}

/// The floor: each column's samples looked at, many at once.
void rebuildByScan(benchmark::State& state)
{
    const auto samples = static_cast<std::size_t>(state.range(0));
    std::vector<SampleSeries> series(kTraces);
    std::vector<std::vector<float>> values(kTraces);
    for (int trace = 0; trace < kTraces; ++trace) {
        const auto place = static_cast<std::size_t>(trace);
        series[place].reserve(samples);
        walk(trace, samples, [&](double time, float value) {
            series[place].append(time, 0.0);
            values[place].push_back(value);
        });
    }
    const Span window = windowOf(samples, true);
    std::vector<uint32_t> positions(kColumns + 1);
    double shift = 0;
    int step = 0;
    for (auto _ : state) {
        shift = pan(window, step++);
        for (std::size_t trace = 0; trace < kTraces; ++trace) {
            series[trace].positionsAt(window.begin + shift, (window.end - window.begin) / kColumns, positions);
            for (std::size_t i = 0; i < kColumns; ++i)
                benchmark::DoNotOptimize(MinMaxPyramid<float>::scan(values[trace].data() + positions[i], positions[i + 1] - positions[i]));
        }
    }
}

/// Six of the traces are states, all may be interrupted, and another cycle lies behind them.
void addStatesAndGhost(GraphModel& model)
{
    const auto pStates = std::make_shared<const StateNames>(std::map<int64_t, QString>{{0, "Stopped"}, {1, "Running"}}, false);
    auto pGhost = std::make_shared<Ghost>();
    pGhost->name = "Flight 1";
    pGhost->traces.setCount(kTraces);
    std::vector<double> times, values;
    for (int trace = 0; trace < kTraces; ++trace) {
        const SampleSeries& samples = model.traces().at(trace)->samples;
        times.clear();
        values.clear();
        for (std::size_t i = 0; i < samples.size(); i += 10) {
            times.push_back(samples.time(i));
            values.push_back(samples.value(i));
        }
        pGhost->traces.setActive(trace, true);
        pGhost->traces.append(trace, times, values);
        if (trace % 5 == 0)
            model.traces().edit(trace, [&](GraphParameter& parameter) {
                parameter.pStates = pStates;
                SampleSeries states;
                states.reserve(parameter.samples.size());
                for (std::size_t i = 0; i < parameter.samples.size(); ++i)
                    states.append(parameter.samples.time(i), static_cast<double>(i / 20000 % 2));
                parameter.samples = std::move(states);
            });
    }
    model.settings().gapsOn = true;
    model.scenery().setGhost(std::move(pGhost));
}

void frame(benchmark::State& state)
{
    if (!displayApplication())
        return state.SkipWithError("no display");
    const auto samples = static_cast<std::size_t>(state.range(0));
    WidgetGraphES graph;
    graph.resize(kColumns, kHeight);
    fill(graph.model(), samples);
    if (state.range(2) != 0)
        addStatesAndGhost(graph.model());
    graph.model().settings().displayMode = state.range(3) != 0 ? eSplit : eSingleGraph;
    if (!showOnScreen(graph))
        return state.SkipWithError("no window on the screen");
    auto* pSurface = graph.findChild<QWidget*>();
    if (!pSurface)
        return state.SkipWithError("no surface");
    const Span window = windowOf(samples, state.range(1) != 0);
    double shift = 0;
    int step = 0;
    for (auto _ : state) {
        shift = pan(window, step++);
        graph.model().setWindow({window.begin + shift, window.end + shift});
        graph.model().setCursorPosition((window.begin + window.end) / 2 + shift);
        pSurface->repaint();
        QApplication::processEvents();
    }
    state.counters["columns"] = graph.layoutOfFrame().plot().width();
}

BENCHMARK(frame)->Name("graph/frame")->ArgNames({"", "", "states", "split"})
    ->Args({1000000, 1, 0, 0})->Args({1000000, 0, 0, 0})->Args({10000000, 1, 0, 0})
    ->Args({1000000, 1, 1, 0})->Args({1000000, 0, 1, 0})->Args({1000000, 1, 0, 1})->Args({1000000, 1, 1, 1})
    ->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
BENCHMARK(rebuild)->Name("graph/rebuild")->Arg(10000000)->Unit(benchmark::kMillisecond);
BENCHMARK(rebuildByScan)->Name("graph/scan")->Arg(10000000)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace ZARN
