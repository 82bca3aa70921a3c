#include "app/Console.h"
#include "app/Progress.h"
#include "app/Property.h"
#include "bench/BenchApplication.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "project/Project.h"
#include "project/RecordSession.h"
#include "sim/DemoCard.h"
#include "ui/data/DataTabBar.h"
#include "ui/data/DialogData.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include <memory>

namespace ZARN {

namespace {

constexpr double kHours = 3.0;
constexpr unsigned kLongestCycle = 4; // of a demo card of three hours
constexpr std::size_t kShownParameters = 16;
const char* const kVariants[] = {"915 A", "916 A"};

/// The data area of the program over the demo card, with one of its views in front.
struct ChangeWindow {
    explicit ChangeWindow(EDataView front)
        : profile(console), container(console, profile, nullProgress()), property(console), project(console, profile), record(container)
    {
        loadProfile(0);
        std::size_t shown = 0;
        for (const ProfileDevice& device : profile.data()) {
            for (const ProfileParameter& parameter : device.parameters) {
                if (shown < kShownParameters && ++shown > 0)
                    profile.setSelected(parameter.name, true);
            }
        }
        DemoCardOptions options;
        options.hours = kHours;
        std::string error;
        DemoCard().write((folder.path() + "/card").toStdString(), options, error);
        container.readContainer(folder.path() + "/card");
        container.loadCycle(kLongestCycle, -1);
        views = DataViewList::create({console, property, profile, container, project}, folder.path());
        pArea = std::make_unique<DialogData>(record, views, false);
        pArea->resize(1500, 900);
        pArea->show();
        pArea->findChild<DataTabBar*>()->setCurrentIndex(front);
        record.setRecord();
        settle();
    }
    void loadProfile(int variant)
    {
        profile.loadProfile(QString(ZARN_SOURCE_DIR "/resources/profiles/915/Profile.xml"), kVariants[variant]);
    }
    /// Until all is painted.
    static void settle() { QApplication::processEvents(); }

    QTemporaryDir folder;
    Console console{[](std::string_view) {}, [](std::string_view) {}};
    Profile profile;
    CardContainer container;
    Property property;
    Project project;
    RecordSession record;
    DataViewList views;
    std::unique_ptr<DialogData> pArea;
};

EDataView frontOf(const benchmark::State& state)
{
    return static_cast<EDataView>(state.range(0));
}

/// The anchor: the views in sight, the one in front and the map, are filled and painted, once.
void fill(benchmark::State& state)
{
    startApplication();
    const ChangeWindow window(frontOf(state));
    for (auto _ : state) {
        for (const EDataView which : {frontOf(state), eViewMap}) {
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
        window.loadProfile(variant = 1 - variant);
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
