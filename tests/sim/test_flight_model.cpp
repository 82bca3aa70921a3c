#include "tests/sim/FlightFinder.h"
#include "sim/FlightModel.h"

#include <QTest>

#include <algorithm>

using namespace ZARN;

/// What one power cycle of the model amounts to.
struct CycleSummary {
    double seconds = 0;
    double highest = 0; ///< m above the airfield
    double lowestWhileFixed = 1e9;
    std::vector<std::pair<double, double>> groundSpeed;
    double fuelUsed = 0;
};

class TestFlightModel : public QObject {
    Q_OBJECT

private:
    static constexpr double kLongest = 6 * 3600; // no cycle may take longer; a leg that never ends would

    static CycleSummary run(const CyclePlan& plan, LogBook& book)
    {
        CycleSummary summary;
        FlightModel model(plan, book);
        const Snapshot& now = model.snapshot();
        for (unsigned long step = 0; summary.seconds < kLongest && model.step(); ++step) {
            summary.seconds += kStep;
            if (step % 2 == 0)
                summary.groundSpeed.emplace_back(summary.seconds, now.gps.groundSpeed);
            if (now.gps.fix == 3) {
                summary.highest = std::max(summary.highest, now.gps.altitude - kFieldElevation);
                summary.lowestWhileFixed = std::min(summary.lowestWhileFixed, now.gps.altitude - kFieldElevation);
            }
        }
        summary.fuelUsed = now.engine.fuelUsed;
        return summary;
    }

private Q_SLOTS:
    /// Whatever the weather and the plan: each cycle ends, each tow is a flight of its own and reaches its height.
    void everyTowIsAFlight_data()
    {
        QTest::addColumn<quint64>("seed");
        for (const quint64 seed : {0ULL, 1ULL, 2ULL, 77ULL, 0xFFFFFFFFFFFFFFFFULL})
            QTest::addRow("seed %llu", seed) << seed;
    }

    void everyTowIsAFlight()
    {
        QFETCH(quint64, seed);
        CyclePlanner planner(seed);
        LogBook book;
        double seconds = 0;
        for (int cycle = 1; cycle <= 5; ++cycle) {
            const CyclePlan plan = planner.next(seconds);
            const CycleSummary summary = run(plan, book);
            seconds = summary.seconds;
            QVERIFY2(seconds < kLongest, qPrintable(QString("cycle %1").arg(cycle)));
            QCOMPARE(findFlights(summary.groundSpeed).size(), plan.tows.size());
            double release = 0;
            for (const TowPlan& tow : plan.tows)
                release = std::max(release, tow.releaseHeight);
            if (plan.tows.empty())
                continue;
            QVERIFY2(summary.highest > release - 5 && summary.highest < release + 40, qPrintable(QString::number(summary.highest - release)));
            QVERIFY(summary.lowestWhileFixed > -5);
            const double fuel = summary.fuelUsed / static_cast<double>(plan.tows.size());
            QVERIFY2(fuel > 3 && fuel < 15, qPrintable(QString::number(fuel)));
        }
    }

    /// A run without a clock must end before the recorder begins its second file, which would start another cycle.
    void theRunWithoutAClockIsShort()
    {
        for (quint64 seed = 0; seed < 20; ++seed) {
            CyclePlanner planner(seed);
            planner.next(0);
            planner.next(1000);
            const CyclePlan plan = planner.next(3000);
            QVERIFY(!plan.clock);
            LogBook book;
            const double seconds = run(plan, book).seconds;
            QVERIFY2(seconds > 300 && seconds < 600, qPrintable(QString::number(seconds)));
        }
    }

    /// The clock goes on from cycle to cycle and leaves room for the cycle before; flying ends in the evening.
    void powerUpsFollowEachOther()
    {
        CyclePlanner planner(5);
        QDateTime before = planner.next(0).powerUp;
        for (int cycle = 0; cycle < 200; ++cycle) {
            const qint64 lasted = 3000;
            const QDateTime powerUp = planner.next(static_cast<double>(lasted)).powerUp;
            QVERIFY(before.secsTo(powerUp) > lasted);
            QVERIFY(powerUp.time() >= QTime(7, 0) && powerUp.time() <= QTime(17, 0));
            before = powerUp;
        }
    }

    void oneLaneAloneFeedsTheEngine()
    {
        CyclePlanner planner(3);
        const CyclePlan plan = planner.next(0);
        LogBook book;
        FlightModel model(plan, book);
        const Snapshot& now = model.snapshot();
        double both = 0;
        double alone = 0;
        double speedBoth = 0;
        double speedAlone = 0;
        while (model.step() && alone == 0) {
            if (now.lanes[0].state == static_cast<double>(static_cast<int>(ELaneState::eOff))) {
                for (int step = 0; step < 50; ++step)
                    model.step();
                alone = now.lanes[1].fuelFlow;
                speedAlone = now.engine.speed;
                QCOMPARE(now.lanes[0].fuelFlow, 0.0);
            } else if (now.lanes[0].throttle > 50) {
                both = now.lanes[1].fuelFlow;
                speedBoth = now.engine.speed;
            }
        }
        QVERIFY2(alone > 1.7 * both && alone < 2.1 * both, qPrintable(QString("%1 %2").arg(both).arg(alone)));
        QVERIFY2(speedBoth - speedAlone > 50 && speedBoth - speedAlone < 150, qPrintable(QString("%1 %2").arg(speedBoth).arg(speedAlone)));
    }
};

QTEST_GUILESS_MAIN(TestFlightModel)
#include "test_flight_model.moc"
