#include "app/Console.h"
#include "app/Progress.h"
#include "app/Property.h"
#include "app/StyleHandler.h"
#include "app/gui/ImageHandler.h"
#include "bench/BenchApplication.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "project/Project.h"
#include "sim/DemoCard.h"
#include "ui/data/DialogData.h"

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTimer>

#include <memory>

namespace ZARN {

namespace {

constexpr unsigned kFlightCycle = 2; // of the demo card: the one with two tows
constexpr double kSpeed = 100.0;
constexpr int kRunMilliseconds = 5000;
constexpr qint64 kLateMilliseconds = 40;
constexpr std::size_t kShownParameters = 16;

/// The data area of the program over the demo card, with all of its views.
struct ReplayWindow {
    ReplayWindow() : profile(console), container(console, profile, nullProgress()), property(console), project(console, profile)
    {
        profile.loadProfile(QString(ZARN_SOURCE_DIR "/resources/profiles/915/Profile.xml"), "");
        std::size_t shown = 0;
        for (const ProfileDevice& device : profile.data()) {
            for (const ProfileParameter& parameter : device.parameters) {
                if (shown < kShownParameters && ++shown > 0)
                    profile.setSelected(parameter.name, true);
            }
        }
        std::string error;
        DemoCard().write((folder.path() + "/card").toStdString(), {}, error);
        container.readContainer(folder.path() + "/card");
        container.loadCycle(kFlightCycle, -1);
        const Session session{console, property, profile, container, project};
        pRecord = std::make_unique<RecordSession>(container);
        pArea = std::make_unique<DialogData>(*pRecord, DataViewList::create(session, folder.path()), false);
        pArea->resize(1500, 900);
        pArea->show();
        pArea->updateRecord();
    }

    QTemporaryDir folder;
    Console console{[](std::string_view) {}, [](std::string_view) {}};
    Profile profile;
    CardContainer container;
    Property property;
    Project project;
    std::unique_ptr<RecordSession> pRecord;
    std::unique_ptr<DialogData> pArea;
};

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
    StyleHandler style;
    qApp->setStyleSheet(style.readStyle(":/styles/style.ZARN.css"));
    ReplayWindow window;
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
