// The same traces in a plotting library, where QCustomPlot is installed: what frames of the graph are compared with.

#ifdef ZARN_QCUSTOMPLOT

#undef QT_NO_KEYWORDS // the library's header is written with them
#include <qcustomplot.h>

#include "bench/BenchApplication.h"
#include "bench/GraphTraces.h"

#include <benchmark/benchmark.h>

#include <QApplication>

namespace ZARN {

namespace {

void frameOfLibrary(benchmark::State& state)
{
    if (!displayApplication())
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
    if (!showOnScreen(plot))
        return state.SkipWithError("no window on the screen");
    const Span window = windowOf(samples, state.range(1) != 0);
    double shift = 0;
    int step = 0;
    for (auto _ : state) {
        shift = pan(window, step++);
        plot.xAxis->setRange(window.begin + shift, window.end + shift);
        plot.replot(QCustomPlot::rpImmediateRefresh);
        QApplication::processEvents();
    }
}

BENCHMARK(frameOfLibrary)->Name("graph/library")->Args({1000000, 1})->Args({1000000, 0})->Args({10000000, 1})
    ->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

} // namespace

} // namespace ZARN

#endif
