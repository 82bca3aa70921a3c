#include "live/LiveRecorder.h"
#include "sim/DemoCard.h"
#include "support/TestCycle.h"
#include "trace/TraceSet.h"
#include "ui/data/DataTabBar.h"
#include "ui/data/DialogData.h"
#include "ui/data/model/LiveTableModel.h"
#include "ui/graph/WidgetGraphES.h"
#include "ui/graph/model/TraceSlot.h"
#include "ui/find/FindBar.h"
#include "ui/find/FindForm.h"
#include "ui/live/LiveBar.h"
#include "ui/main/DesktopFixture.h"
#include "ui/main/LiveController.h"
#include "ui/main/MainActions.h"
#include "ui/xy/DialogXy.h"
#include "ui/xy/WidgetXy.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTimer>
#include <QToolButton>

#include <algorithm>

using namespace ZARN;

/// What a bus sends in the main window, against the same frames recorded and opened as a card.
class TestLive : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void grows_data();
    void grows();
    void looksBack();
    void emu();

private:
    QTemporaryDir mFolder;
    std::vector<LiveRecords> mBatches; ///< of a second
    const QDateTime mNow{QDate(2026, 11, 22), QTime(12, 0), Qt::UTC};
};

namespace {

LiveRecords contentOf(const RecordData& data)
{
    LiveRecords records;
    data.forEachInOrder([&](uint32_t identifier, const StoredRecord& record) { records.push_back({identifier, record}); });
    return records;
}

bool isSame(const LiveRecord& a, const LiveRecord& b)
{
    return a.identifier == b.identifier && a.record.ticks == b.record.ticks && a.record.payload == b.record.payload;
}

struct Desktop {
    explicit Desktop(double window, const std::vector<std::string>& arguments = {}) : fixture(home.path(), arguments), main(fixture.open())
    {
        started(main);
        for (const char* name : {"Engine Speed A", "Manifold Pressure A", "Lane State A", "Latitude", "Boost Lamp"})
            fixture.profile.setSelected(name, true);
        main.findChild<DataTabBar*>()->setCurrentIndex(eViewGraph);
        pLive->beginRun(window);
        main.slotProfileChanged();
    }
    const ShownTraces& traces() { return main.findChild<WidgetGraphES*>()->model().traces(); }

    QTemporaryDir home;
    DesktopFixture fixture;
    DialogMain& main;
    LiveController* pLive = main.findChild<LiveController*>();
};

} // namespace

void TestLive::initTestCase()
{
    const QString path = mFolder.filePath("card");
    std::string error;
    QVERIFY2(DemoCard().write(path.toStdString(), {}, error), error.c_str());
    Test::TestCycle card;
    QVERIFY(card.container.readContainer(path) && card.container.loadCycle(2, -1));
    LiveRecorder recorder(mFolder.filePath("run"));
    QVERIFY(recorder.open());
    uint64_t last = 0;
    for (LiveRecord record : contentOf(card.container.recordData())) {
        record.record.ticks = last = std::max(record.record.ticks, last + 1); // as a bus has them
        if (mBatches.empty() || record.record.time() > mBatches.back().front().record.time() + 1)
            mBatches.emplace_back();
        mBatches.back().push_back(record);
    }
    for (const LiveRecords& batch : mBatches)
        QVERIFY(recorder.append(batch, mNow));
    QVERIFY(recorder.close());
}

void TestLive::grows_data()
{
    QTest::addColumn<double>("window");
    QTest::newRow("all of it") << 1e6;
    QTest::newRow("the oldest go") << 100.0;
}

void TestLive::grows()
{
    QFETCH(double, window);
    Desktop desktop(window);
    const CardContainer& live = desktop.fixture.container;
    std::optional<LoadedCard> early;
    LiveRecords atFirst;
    for (std::size_t i = 0; i < mBatches.size(); ++i) {
        desktop.pLive->take(mBatches[i], mNow);
        if (i % 20 != 0)
            continue;
        desktop.pLive->showNewest();
        QCoreApplication::processEvents();
        if (i == 40) {
            early = live.loaded();
            atFirst = contentOf(*early->pRecord);
        }
    }
    CardContainer recorded(desktop.fixture.console.console, desktop.fixture.profile.context(), nullProgress());
    QVERIFY(recorded.readContainer(mFolder.filePath("run")) && recorded.loadCycle(1, -1));
    const double end = recorded.endTime();
    QTRY_VERIFY((desktop.pLive->showNewest(), live.startTime() >= end - 2 * window));
    QVERIFY(live.startTime() <= std::max(end - window, recorded.startTime()) + 1);
    QCOMPARE(live.endTime(), end);
    QVERIFY(std::ranges::equal(contentOf(*early->pRecord), atFirst, isSame)); // whoever works on it is not disturbed

    for (const ProfileDevice& device : desktop.fixture.profile.data()) {
        for (const ProfileParameter& parameter : device.parameters) {
            for (const double time : {end, end - 10, end - 60.5})
                QCOMPARE(live.values().getValue(parameter, time), recorded.values().getValue(parameter, time));
        }
    }
    // What was put behind what the graph had is what it has when it is filled at once.
    const TraceSet whole(&live.recordData(), desktop.fixture.profile, ENumber::eDisplay, TraceSet::selected(desktop.fixture.profile.selection()));
    QVERIFY(desktop.traces().count() >= 5);
    for (int slot = 0; slot < desktop.traces().count(); ++slot) {
        ShownTraces expected;
        expected.setCount(1);
        fillSlot(expected, 0, whole[static_cast<std::size_t>(slot)]);
        const SampleSeries &shown = desktop.traces().at(slot)->samples, &wanted = expected.at(0)->samples;
        QTRY_COMPARE(shown.size(), wanted.size()); // a view that takes long is given the newest a little later
        QCOMPARE(desktop.traces().at(slot)->breaks, expected.at(0)->breaks);
        for (std::size_t i = 0; i < wanted.size(); i += 7)
            QVERIFY(shown.time(i) == wanted.time(i) && shown.value(i) == wanted.value(i));
        QCOMPARE(shown.range(1, shown.size() - 1).greatest, wanted.range(1, wanted.size() - 1).greatest);
    }
}

void TestLive::looksBack()
{
    Desktop desktop(1e6);
    auto* pData = desktop.main.findChild<DialogData*>();
    const auto feed = [&](std::size_t from, std::size_t to) {
        while (from < to)
            desktop.pLive->take(mBatches[from++], mNow);
    };
    const auto latest = [this](std::size_t batches) { return mBatches[batches - 1].back().record.time(); };
    feed(0, 100);
    QTRY_COMPARE(pData->viewTime(), latest(100));
    QTRY_COMPARE(desktop.main.findChild<WidgetGraphES*>()->model().window().contains(latest(100)), true);

    // What was found of it, and what is drawn, grows by itself.
    desktop.main.action(eActionFind)->trigger();
    auto* pFind = desktop.main.findChild<FindBar*>();
    pFind->findChild<QToolButton*>()->click();
    for (QLineEdit* pEdit : pFind->form().findChildren<QLineEdit*>())
        pEdit->setText(pEdit->placeholderText().isEmpty() ? pEdit->text() : "\"Engine Speed A\" > 0");
    desktop.main.action(eActionXy)->trigger();
    const XyPoints& points = desktop.main.findChild<DialogXy*>()->view().points();
    const std::vector<TimeSpan>& found = desktop.main.findChild<WidgetGraphES*>()->model().scenery().found();
    QTRY_VERIFY(points.samples() > 0 && !found.empty());
    const std::size_t samples = points.samples();
    feed(100, 110);
    QTRY_VERIFY(points.samples() > samples && found.back().end > latest(105));

    pData->slotTableTime(20.0);
    QTRY_VERIFY(desktop.pLive->isPaused());
    const std::size_t all = mBatches.size();
    feed(110, all);
    QVERIFY(QSignalSpy(desktop.pLive->findChild<QTimer*>({}, Qt::FindDirectChildrenOnly), &QTimer::timeout).wait());
    QCOMPARE(pData->viewTime(), 20.0);
    QCOMPARE(desktop.fixture.container.endTime(), latest(110));

    // What happened meanwhile is told, and shown with a click.
    auto* pBar = desktop.main.findChild<LiveBar*>();
    const auto* pIncidents = pBar->findChild<QLabel*>("liveIncidents");
    QTRY_VERIFY_WITH_TIMEOUT(pIncidents->text().contains("Manifold Pressure 1,586 hPa"), 20000);
    Q_EMIT pBar->signalIncident(0);
    QTRY_VERIFY(pData->viewTime() > 20.0 && pData->graphSpan()->holds(pData->viewTime()));
    desktop.pLive->setPaused(false);
    QTRY_COMPARE(pData->viewTime(), latest(all));
    QTRY_COMPARE_WITH_TIMEOUT(desktop.fixture.container.loadedCycle()->flights.size(), std::size_t{2}, 20000);

    desktop.main.openFolder(mFolder.filePath("card"));
    settled(desktop.main);
    QVERIFY(!desktop.fixture.container.isLive() && !pBar->isVisible());
    QCOMPARE(desktop.fixture.container.recordCycles().size(), std::size_t{3});
    feed(0, 1); // belated
    QCoreApplication::processEvents();
    QVERIFY(!desktop.fixture.container.isLive());
}

/// The newest values, of whichever snapshot they came with.
void TestLive::emu()
{
    Desktop desktop(1e6, {"-emu"});
    desktop.main.findChild<DataTabBar*>()->setCurrentIndex(eViewTable);
    for (std::size_t i = 0; i < mBatches.size() / 2; ++i) {
        desktop.pLive->take(mBatches[i], mNow);
        if (i % 50 == 0)
            desktop.pLive->showNewest();
    }
    desktop.pLive->showNewest();
    const std::shared_ptr<RecordData> pRecord = desktop.fixture.container.record(); // the next one takes its place
    const TraceSet traces(pRecord.get(), desktop.fixture.profile, ENumber::eText,
                          TraceSet::selected(desktop.fixture.profile.selection()));
    const auto* pModel = desktop.main.findChild<LiveTableModel*>();
    QCOMPARE(pModel->rowCount(), static_cast<int>(traces.size()));
    for (std::size_t i = 0; i < traces.size(); ++i) {
        const QString newest = QString::fromStdString(traces[i].decoder().text(traces[i].number(traces[i].size() - 1)));
        QTRY_COMPARE(pModel->index(static_cast<int>(i), 0).data().toString(), newest);
    }
}

QTEST_MAIN(TestLive)
#include "TestLive.moc"
