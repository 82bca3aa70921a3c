#include "analysis/CycleReview.h"
#include "app/Console.h"
#include "app/Progress.h"
#include "app/Property.h"
#include "bench/BenchApplication.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "project/Project.h"
#include "sim/DemoCard.h"
#include "ui/overview/DialogOverview.h"

#include <benchmark/benchmark.h>

#include <QProgressBar>
#include <QTemporaryDir>

namespace ZARN {

namespace {

constexpr QSize kSize(660, 700); // of the overview in a window of 1000 x 800

/// The demo card, with what a window over it needs.
struct OverviewCard {
    OverviewCard() : profile(console), container(console, profile, nullProgress()), property(console), project(console, profile)
    {
        startApplication();
        profile.loadProfile(QString(ZARN_SOURCE_DIR "/resources/profiles/915/Profile.xml"), "915 A");
        std::string error;
        DemoCard().write(path().toStdString(), DemoCardOptions{}, error);
    }
    [[nodiscard]] QString path() const { return folder.path() + "/card"; }

    QTemporaryDir folder;
    Console console{[](std::string_view) {}, [](std::string_view) {}};
    Profile profile;
    CardContainer container;
    Property property;
    Project project;
};

/// From the folder to all cards in the picture.
void open(benchmark::State& state)
{
    OverviewCard card;
    DialogOverview overview({card.console, card.property, card.profile, card.container, card.project});
    overview.setStyleSheet(styleSheet());
    overview.resize(kSize);
    overview.show();
    QApplication::processEvents();
    const auto* pProgress = overview.findChild<QProgressBar*>();
    for (auto _ : state) {
        card.container.readContainer(card.path());
        overview.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the cards of the time before; no loop runs that would do it
        while (pProgress->isVisible())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QApplication::processEvents();
    }
    state.counters["height"] = overview.widget()->height();
}

/// The anchor: the same cycles read and reviewed, and nothing shown.
void facts(benchmark::State& state)
{
    OverviewCard card;
    for (auto _ : state) {
        card.container.readContainer(card.path());
        for (const auto& [number, cycle] : card.container.recordCycles()) {
            card.container.loadCycle(number, -1);
            benchmark::DoNotOptimize(reviewCycle(card.container.values(), cycle.flights, cycle.endTime).incidents.size());
        }
    }
}

BENCHMARK(open)->Name("overview/open")->MeasureProcessCPUTime()->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(facts)->Name("overview/facts")->MeasureProcessCPUTime()->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace

} // namespace ZARN
