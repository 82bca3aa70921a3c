#include "app/BackgroundTask.h"
#include "app/Parallel.h"

#include <QSignalSpy>
#include <QtTest>

using namespace ZARN;

namespace {

void untilCancelled(Progress& progress)
{
    while (!progress.isCancelled())
        progress.setProgress(1);
}

} // namespace

class TestBackgroundTask : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void inParallelDoesAllOnce()
    {
        std::vector<std::atomic<int>> done(1000);
        inParallel(done.size(), [&done](std::size_t item, std::size_t worker) { done[item] += worker < kWorkers ? 1 : 100; });
        QVERIFY(std::ranges::all_of(done, [](int count) { return count == 1; }));
        QVERIFY_EXCEPTION_THROWN(inParallel(2, [](std::size_t, std::size_t) { throw std::bad_alloc(); }), std::bad_alloc);
    }
    void tellsHowItEnded_data()
    {
        QTest::addColumn<BackgroundTask::Work>("work");
        QTest::addColumn<int>("reports");
        QTest::addColumn<QString>("error");
        QTest::newRow("done") << BackgroundTask::Work([](Progress& progress) {
            for (int i = 0; i < 6; ++i)
                progress.setProgress(i / 2);
        }) << 3 << QString();
        QTest::newRow("cancelled") << BackgroundTask::Work(untilCancelled) << 1 << QString();
        QTest::newRow("thrown") << BackgroundTask::Work([](Progress&) { throw std::runtime_error("Oh"); }) << 0 << "Oh";
        QTest::newRow("memory") << BackgroundTask::Work([](Progress&) { throw std::bad_alloc(); }) << 0 << "The memory is not enough.";
    }

    void tellsHowItEnded()
    {
        QFETCH(BackgroundTask::Work, work);
        QFETCH(int, reports);
        BackgroundTask task;
        int progress = 0;
        QSignalSpy finished(&task, &BackgroundTask::signalFinished);
        connect(&task, &BackgroundTask::signalProgress, &task, [&](int) {
            QCOMPARE(thread(), QThread::currentThread());
            ++progress;
        });
        for (int run = 1; run <= 2; ++run) { // a task may be used again
            task.start(work);
            QVERIFY(task.isRunning() && !task.isCancelled());
            QTRY_COMPARE(progress, run * reports); // it has begun
            task.cancel();
            QTRY_COMPARE(finished.count(), run);
            QVERIFY(!task.isRunning());
            QTEST(task.error(), "error");
        }
        QCOMPARE(progress, 2 * reports);
    }

    void endsWithItsOwner()
    {
        std::atomic<bool> isDone = false;
        {
            BackgroundTask task;
            task.start([&](Progress& report) {
                untilCancelled(report);
                isDone = true;
            });
        }
        QVERIFY(isDone);
    }
};

QTEST_GUILESS_MAIN(TestBackgroundTask)
#include "TestBackgroundTask.moc"
