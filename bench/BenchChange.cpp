#include "bench/BenchWindow.h"
#include "ui/data/DataTabBar.h"

#include <benchmark/benchmark.h>

namespace ZARN {

namespace {

constexpr double kHours = 3.0;
constexpr unsigned kLongestCycle = 4; // of a demo card of three hours
const char* const kVariants[] = {"915 A", "916 A"};

/// With one of the views in front.
struct ChangeWindow : BenchWindow {
    explicit ChangeWindow(EDataView front) : BenchWindow(kHours, kLongestCycle, kVariants[0])
    {
        pArea->findChild<DataTabBar*>()->setCurrentIndex(front);
        record.setRecord();
        settle();
    }
    /// Until all is painted: what is laid out anew may have more painted behind it.
    static void settle()
    {
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
    }
};

EDataView frontOf(const benchmark::State& state)
{
    return static_cast<EDataView>(state.range(0));
}

/// The anchor: the views in sight, the one in front and the map, are filled and painted, once. The map is emptied before, for
/// it does not paint again what it shows already.
void fill(benchmark::State& state)
{
    startApplication();
    const ChangeWindow window(frontOf(state));
    for (auto _ : state) {
        for (const EDataView which : {frontOf(state), eViewMap}) {
            if (which == eViewMap)
                window.views.view(which).updateRecord(nullptr);
            window.views.view(which).update(window.record.record());
            window.views.view(which).setTime(window.record.viewTime());
        }
        ChangeWindow::settle();
    }
}

/// Flights and path are worked out anew by another thread; what they cost the views counts.
void settleWithFlights(ChangeWindow& window, benchmark::State& state)
{
    ChangeWindow::settle();
    state.PauseTiming();
    window.container.recalculate(-1);
    state.ResumeTiming();
    window.record.changeFlights();
    ChangeWindow::settle();
}

void changeUnit(benchmark::State& state)
{
    startApplication();
    ChangeWindow window(frontOf(state));
    bool isImperial = false;
    for (auto _ : state) {
        isImperial = !isImperial;
        window.profile.setCurrentUnit(isImperial ? EUnit::eImperial : EUnit::eMetric);
        window.record.changeUnit();
        settleWithFlights(window, state);
    }
}

void changeVariant(benchmark::State& state)
{
    startApplication();
    ChangeWindow window(frontOf(state));
    int variant = 0;
    for (auto _ : state) {
        state.PauseTiming();
        window.loadProfile(kVariants[variant = 1 - variant]);
        state.ResumeTiming();
        window.record.changeProfile();
        settleWithFlights(window, state);
    }
}

BENCHMARK(fill)->Name("change/fill")->DenseRange(eViewTable, eViewGraph)->Unit(benchmark::kMillisecond);
BENCHMARK(changeUnit)->Name("change/unit")->DenseRange(eViewTable, eViewGraph)->Unit(benchmark::kMillisecond);
BENCHMARK(changeVariant)->Name("change/variant")->DenseRange(eViewTable, eViewGraph)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace ZARN
