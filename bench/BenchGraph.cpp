// The graph beside the same traces in a plotting library (where QCustomPlot is installed), in one run. Needs a display.

#undef QT_NO_KEYWORDS // that library is written with them

#include "bench/BenchApplication.h"
#include "ui/graph/WidgetGraphES.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QOpenGLWidget>

#ifdef ZARN_QCUSTOMPLOT
#include <qcustomplot.h>
#endif

#include <cmath>

namespace ZARN {

namespace {

constexpr int kTraces = 30;
constexpr int kColumns = 1200, kHeight = 700;
constexpr double kPeriod = 0.008; // seconds: ten million samples are less than a day
constexpr std::size_t kPiece = 100000;

/// A random walk with jittered times, as peers get it too. Calls put(time, value) for each sample.
template <typename Put> void walk(int trace, std::size_t samples, Put put)
{
    uint64_t state = 88172645463325252ULL + static_cast<uint64_t>(trace);
    double value = 0;
    for (std::size_t i = 0; i < samples; ++i) {
        state ^= state << 13;
        state ^= state >> 7;
        state ^= state << 17;
        value = (value + static_cast<double>(static_cast<int64_t>(state & 0xFFFF) - 32768) * 0x1p-15) * 0.9999;
        put((static_cast<double>(i) + static_cast<double>(state >> 40) * 0x1p-24 * 0.8) * kPeriod, static_cast<float>(0.5 + value * 0.004));
    }
}

void fill(GraphModel& model, std::size_t samples)
{
    model.setMaxParameters(kTraces);
    model.setOfflineMode(true);
    model.setGraphMode(eManual);
    std::vector<double> times, values;
    for (int trace = 0; trace < kTraces; ++trace) {
        model.setActive(trace, true);
        model.setParameterName(trace, QString("Trace %1").arg(trace), "kPa");
        model.reserve(trace, samples);
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

/// The application that windows need; null where there is no display.
QApplication* application()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return nullptr;
    startApplication();
    return qApp;
}

struct Span {
    double begin;
    double end;
};

/// The windows that are panned through: all, and a minute in the middle.
Span windowOf(std::size_t samples, bool whole)
{
    const double end = static_cast<double>(samples) * kPeriod;
    return whole ? Span{0, end} : Span{end / 2, end / 2 + 60};
}

void rebuild(benchmark::State& state)
{
    GraphModel model;
    fill(model, static_cast<std::size_t>(state.range(0)));
    model.setPlot(kColumns, kHeight);
    const Span window = windowOf(static_cast<std::size_t>(state.range(0)), true);
    double shift = 0;
    std::size_t bytes = 0;
    for (const GraphParameter& parameter : model.parameters())
        bytes += parameter.samples.bytes();
    for (auto _ : state) {
        shift += (window.end - window.begin) * 0.001;
        model.setWindow(window.begin + shift, window.end + shift);
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
    for (auto _ : state) {
        shift += (window.end - window.begin) * 0.001;
        for (std::size_t trace = 0; trace < kTraces; ++trace) {
            series[trace].positionsAt(window.begin + shift, (window.end - window.begin) / kColumns, positions);
            for (std::size_t i = 0; i < kColumns; ++i)
                benchmark::DoNotOptimize(MinMaxPyramid<float>::scan(values[trace].data() + positions[i], positions[i + 1] - positions[i]));
        }
    }
}

void frame(benchmark::State& state)
{
    if (!application())
        return state.SkipWithError("no display");
    const auto samples = static_cast<std::size_t>(state.range(0));
    WidgetGraphES graph;
    graph.resize(kColumns, kHeight);
    fill(graph.model(), samples);
    graph.show();
    QApplication::processEvents();
    auto* pSurface = graph.findChild<QOpenGLWidget*>();
    if (!pSurface)
        return state.SkipWithError("no OpenGL");
    const Span window = windowOf(samples, state.range(1) != 0);
    double shift = 0;
    for (auto _ : state) {
        shift += (window.end - window.begin) * 0.002;
        graph.model().setWindow(window.begin + shift, window.end + shift);
        graph.model().setCursorPosition((window.begin + window.end) / 2 + shift);
        pSurface->repaint();
        QApplication::processEvents();
    }
    state.counters["columns"] = graph.layoutOfFrame().plot().width();
}

#ifdef ZARN_QCUSTOMPLOT
void frameOfLibrary(benchmark::State& state)
{
    if (!application())
        return state.SkipWithError("no display");
    const auto samples = static_cast<std::size_t>(state.range(0));
    QCustomPlot plot;
    plot.resize(kColumns, kHeight);
    plot.setNotAntialiasedElements(QCP::aeAll);
    for (int trace = 0; trace < kTraces; ++trace) {
        QCPGraph* pGraph = plot.addGraph();
        QVector<QCPGraphData> data;
        data.reserve(static_cast<qsizetype>(samples));
        walk(trace, samples, [&](double time, float value) { data.append({time, static_cast<double>(value)}); });
        const QSharedPointer<QCPGraphDataContainer> container(new QCPGraphDataContainer);
        container->set(data, true);
        pGraph->setData(container);
        pGraph->setPen(QPen(QColor(trace * 8, 90, 255 - trace * 8), 1));
    }
    plot.yAxis->setRange(0, 1);
    plot.show();
    QApplication::processEvents();
    const Span window = windowOf(samples, state.range(1) != 0);
    double shift = 0;
    for (auto _ : state) {
        shift += (window.end - window.begin) * 0.002;
        plot.xAxis->setRange(window.begin + shift, window.end + shift);
        plot.replot(QCustomPlot::rpImmediateRefresh);
        QApplication::processEvents();
    }
}

BENCHMARK(frameOfLibrary)->Name("graph/library")->Args({1000000, 1})->Args({1000000, 0})->Args({10000000, 1})->Unit(benchmark::kMillisecond);
#endif

BENCHMARK(frame)->Name("graph/frame")->Args({1000000, 1})->Args({1000000, 0})->Args({10000000, 1})->Unit(benchmark::kMillisecond);
BENCHMARK(rebuild)->Name("graph/rebuild")->Arg(10000000)->Unit(benchmark::kMillisecond);
BENCHMARK(rebuildByScan)->Name("graph/scan")->Arg(10000000)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace ZARN
