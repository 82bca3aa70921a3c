#include "app/gui/ImageHandler.h"
#include "bench/BenchWindow.h"

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTabBar>
#include <QTimer>

namespace ZARN {

namespace {

constexpr unsigned kFlightCycle = 2; // of the demo card: the one with two tows
constexpr double kSpeed = 100.0;
constexpr int kRunMilliseconds = 5000;
constexpr qint64 kLateMilliseconds = 40;

/// Notes how long the ticks of the replay come after each other.
class TickWatch : public QObject {
public:
    bool eventFilter(QObject* /*pObject*/, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::Timer) {
            const qint64 gap = mSince.isValid() ? mSince.restart() : (mSince.start(), 0);
            ++ticks;
            late += gap > kLateMilliseconds ? 1 : 0;
            longest = std::max(longest, gap);
        }
        return false;
    }
    int ticks = 0;
    int late = 0;
    qint64 longest = 0;

private:
    QElapsedTimer mSince;
};

void wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// A replay at full speed with one tab and the map in sight.
void replay(benchmark::State& state)
{
    startApplication();
    ImageHandler::initialise();
    qApp->setStyleSheet(styleSheet());
    BenchWindow window(DemoCardOptions().hours, kFlightCycle);
    window.record.setRecord();
    window.pArea->findChild<QTabBar*>()->setCurrentIndex(static_cast<int>(state.range(0)));
    wait(1000);
    for (auto _ : state) {
        TickWatch watch;
        for (QTimer* pTimer : window.pArea->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly))
            pTimer->installEventFilter(&watch);
        window.pArea->slotReplaySpeed(kSpeed);
        window.pArea->slotReplayMode();
        wait(kRunMilliseconds);
        window.pArea->slotReplayStop();
        state.counters["ticks"] = watch.ticks;
        state.counters["lateShare"] = static_cast<double>(watch.late) / std::max(watch.ticks, 1);
        state.counters["longestMs"] = static_cast<double>(watch.longest);
    }
    qApp->setStyleSheet(QString()); // other benchmarks compare with plain widgets
}

BENCHMARK(replay)->Name("replay/tab")->DenseRange(0, eViewMap - 1)->Iterations(1)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

} // namespace ZARN
