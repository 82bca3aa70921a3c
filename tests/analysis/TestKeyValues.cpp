#include "analysis/ReviewText.h"
#include "support/CardBuilder.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

#include <QTest>

#include <cmath>
#include <map>
#include <numeric>
#include <random>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

Distribution literally(std::vector<double> values)
{
    std::erase_if(values, [](double value) { return !std::isfinite(value); });
    std::ranges::sort(values);
    if (values.empty())
        return {};
    const auto percentile = [&values](double part) {
        const double rank = part * static_cast<double>(values.size() - 1);
        const auto lower = static_cast<std::size_t>(rank);
        return std::lerp(values[lower], values[std::min(lower + 1, values.size() - 1)], rank - static_cast<double>(lower));
    };
    const double sum = std::accumulate(values.begin(), values.end(), 0.0);
    return {values.size(), values.front(), percentile(0.05), percentile(0.5), percentile(0.95), values.back(), sum / static_cast<double>(values.size())};
}

std::string text(const Distribution& of)
{
    return QString("%1: %2 %3 %4 %5 %6, %7").arg(of.samples).arg(of.minimum).arg(of.p05).arg(of.median).arg(of.p95).arg(of.maximum).arg(of.mean).toStdString();
}

} // namespace

/// The figures of flights against a plain sorting of all their samples.
class TestKeyValues : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void distributions()
    {
        std::mt19937 random(1);
        for (const std::size_t size : {0, 1, 2, 3, 21, 1023, 1024, 5000, 20000}) {
            for (const double spread : {0.0, 1.0, 1e-3, 7.0, 1e300, -1e304, std::numeric_limits<double>::infinity()}) {
                std::vector<double> values;
                std::normal_distribution<double> number(spread < 0 ? 0 : 3, 1);
                while (values.size() < size)
                    values.push_back(std::isinf(spread) && random() % 50 == 0 ? -spread : std::isinf(spread) ? number(random) : std::floor(number(random)) * spread);
                if (size == 5000)
                    values[7] = std::numeric_limits<double>::quiet_NaN();
                const Distribution expected = literally(values);
                QCOMPARE(text(Distribution::of(values)), text(expected));
            }
        }
        std::vector<double> damaged(20, 3.0);
        damaged[2] = 1e30, damaged[18] = -1e30; // in two lanes, and beyond the last
        QCOMPARE(Distribution::of(damaged).mean, 2.7);
    }

    /// Two flights so close that their margins overlap, with climbs, a cut engine and times that run backwards.
    void ofFlights()
    {
        TestCycle cycle;
        ProfileBuilder builder;
        builder.thresholds("T", {{0, "OK", "green"}, {90, "LIMIT", "red"}}).device("D");
        builder.parameter("rpm", 1, "FLOAT", {{"zarnDataType", "EngineSpeed"}}).parameter("gs", 2, "FLOAT", {{"zarnDataType", "GroundSpeed"}});
        builder.parameter("alt", 3, "FLOAT", {{"zarnDataType", "Altitude"}}).parameter("t", 4, "FLOAT", {{"thresholdId", "T"}, {"factor", "0.1"}});
        builder.parameter("other", 5, "FLOAT").parameter("lat", 6, "FLOAT", {{"viewId", "Latitude"}, {"thresholdId", "T"}});
        QVERIFY(builder.load(cycle.profile));
        CardBuilder card;
        RecordFileBuilder& file = card.file("A.CAN");
        std::mt19937 random(2);
        double altitude = 0;
        for (int i = 0; i < 6000; ++i) {
            const double time = i * 0.1 - (i > 3000 && i < 3100 ? 20 : 0);
            altitude += static_cast<double>(random() % 5) / 8 - (i % 800 < 300 ? 0.2 : 0.3);
            file.addFloat(1, time, i > 2000 && i < 2100 ? 0 : 5000).addFloat(2, time + 0.01, i % 1500 < 1200 && i > 300 ? 100 : 0);
            file.addFloat(6, time + 0.04, i % 700 == 500 ? 0 : 4807); // a lost fix is filtered out
            file.addFloat(3, time + 0.02, static_cast<float>(altitude)).addFloat(4, time + 0.03, static_cast<float>(random() % 1000)).addFloat(5, time, 1);
        }
        QVERIFY(cycle.container.readContainer(card.write()) && cycle.container.loadCycle(cycle.container.recordCycles().begin()->first, -1));
        const std::vector<RecordFlight>& flights = cycle.container.loadedCycle()->flights;
        QVERIFY(flights.size() >= 2 && flights[0].endTime > flights[1].startTime);
        const CycleReview review = reviewCycle(cycle.container.values(), flights, cycle.container.endTime(), EKeyValues::eAll);
        QCOMPARE(review.keyValues.sources.size(), std::size_t(3));
        std::map<std::tuple<std::size_t, int, EFlightPhase>, std::vector<double>> samples;
        for (const std::size_t source : {0, 1, 2}) {
            const ProfileParameter& parameter = *cycle.profile.model().find(review.keyValues.sources[source].parameter);
            for (const RecordEntry entry : cycle.container.recordData().channel(parameter.identifier())->entries) {
                for (std::size_t i = 0; i < flights.size(); ++i) {
                    const auto phase = std::ranges::find_if(review.phases, [&entry](const auto& step) { return entry.time <= step.until; })->phase;
                    if (entry.time >= flights[i].startTime && entry.time <= flights[i].endTime)
                        samples[{source, static_cast<int>(i) + 1, phase}].push_back(cycle.profile.getDouble(entry, parameter, true));
                }
            }
        }
        QVERIFY(samples.size() > 12);
        QCOMPARE(review.keyValues.values.size(), samples.size());
        for (const KeyValue& value : review.keyValues.values)
            QCOMPARE(text(value.values), text(literally(samples.at({value.source, value.flight, value.phase}))));
    }

    /// An engine that stops in the air is told while the aircraft is seen to fly, though the record does not show the landing.
    void stopsInTheAir_data()
    {
        QTest::addColumn<double>("speedUntil"); // seconds until which a ground speed is received
        QTest::addColumn<double>("slowFrom");
        QTest::addColumn<double>("stopsAt");
        QTest::addColumn<double>("stopEnds"); // 0: there is none
        QTest::addColumn<bool>("isUnfinished");
        QTest::newRow("the record ends in flight") << 120.0 << 999.0 << 60.0 << 119.5 << true;
        QTest::newRow("the engine runs to the end") << 120.0 << 999.0 << 999.0 << 0.0 << true;
        QTest::newRow("nobody knows whether it flies") << 50.0 << 999.0 << 60.0 << 0.0 << true;
        QTest::newRow("it has landed") << 120.0 << 80.0 << 60.0 << 85.0 << false;
        QTest::newRow("it stops after the landing") << 120.0 << 80.0 << 90.0 << 0.0 << false;
        QTest::newRow("it never took off") << 120.0 << 0.0 << 60.0 << 0.0 << false;
    }
    void stopsInTheAir()
    {
        QFETCH(double, speedUntil);
        QFETCH(double, slowFrom);
        QFETCH(double, stopsAt);
        QFETCH(double, stopEnds);
        TestCycle cycle;
        ProfileBuilder builder;
        builder.thresholds("T", {{0, "OK", "green"}, {90, "LIMIT", "red"}}).device("D").parameter("t", 3, "FLOAT", {{"thresholdId", "T"}});
        builder.parameter("rpm", 1, "FLOAT", {{"zarnDataType", "EngineSpeed"}}).parameter("gs", 2, "FLOAT", {{"zarnDataType", "GroundSpeed"}});
        QVERIFY(builder.load(cycle.profile));
        CardBuilder card;
        RecordFileBuilder& file = card.file("A.CAN");
        for (int i = 0; i < 240; ++i) {
            const double time = i * 0.5;
            file.addFloat(1, time, time < stopsAt ? 5000 : 0).addFloat(3, time, 20);
            if (time < speedUntil)
                file.addFloat(2, time, time < slowFrom && time > 10 ? 130 : 0);
        }
        file.addFloat(2, 3e6, 130); // a damaged time
        QVERIFY(cycle.container.readContainer(card.write()) && cycle.container.loadCycle(cycle.container.recordCycles().begin()->first, -1));
        const CycleReview review = reviewCycle(cycle.container.values(), cycle.container.loadedCycle()->flights, 119.5, EKeyValues::eNone, EStops::eInTheAir);
        QCOMPARE(review.verdict, stopEnds > 0 ? EVerdict::eWarning : EVerdict::eOk);
        QCOMPARE(review.incidents.size(), std::size_t(stopEnds > 0));
        if (stopEnds > 0) {
            QCOMPARE(review.incidents[0].episodes[0].kind, EEpisodeKind::eStop);
            QCOMPARE(review.incidents[0].start, stopsAt);
            QVERIFY2(std::abs(review.incidents[0].end - stopEnds) <= 0.5, qPrintable(QString::number(review.incidents[0].end)));
        }
        QTEST(review.unfinishedSince.has_value(), "isUnfinished");
        const CycleReview plain = reviewCycle(cycle.container.values(), cycle.container.loadedCycle()->flights, 119.5);
        QCOMPARE(plain.stopsNotCounted.size(), review.incidents.size() - plain.incidents.size()); // told, but not counted
        QCOMPARE(!ReviewText(review).gaps().filter("ends in flight").isEmpty(), review.unfinishedSince.has_value());
    }

    /// Ten seconds outside, six of them beyond the limit; an engine speed that is not sent for a while and ends early; a damaged time; a
    /// position that is far away for half a minute, and once.
    void toPeople()
    {
        TestCycle cycle;
        ProfileBuilder builder;
        builder.thresholds("T", {{0, "OK", "green"}, {80, "WARNING", "yellow"}, {90, "LIMIT", "red"}}).device("D");
        builder.parameter("rpm", 1, "FLOAT", {{"zarnDataType", "EngineSpeed"}}).parameter("t", 2, "FLOAT", {{"thresholdId", "T"}});
        builder.parameter("lon", 3, "FLOAT", {{"zarnDataType", "Longitude"}, {"viewId", "Longitude"}});
        QVERIFY(builder.load(cycle.profile));
        CardBuilder card;
        RecordFileBuilder& file = card.file("A.CAN");
        for (int i = 0; i < 1200; ++i) {
            const double time = i * 0.1;
            if (i < 1000 && (i < 400 || i >= 700))
                file.addFloat(1, time, 5000);
            file.addFloat(3, time, (i >= 500 && i < 800) || i == 900 ? 1200 : 1130);
            file.addFloat(2, time, i < 200 || i >= 300 ? 50 : i >= 220 && i < 280 ? 95 : 85);
            if (i == 600)
                file.addFloat(2, 3e6, 50).addFloat(1, 3e6, 5000);
        }
        QVERIFY(cycle.container.readContainer(card.write()) && cycle.container.loadCycle(cycle.container.recordCycles().begin()->first, -1));
        const CycleReview review = reviewCycle(cycle.container.values(), {}, 119.9);
        const auto sentences = IncidentText(QLocale::c()).sentences(review.incidents);
        QCOMPARE(sentences.size(), std::size_t(1));
        QCOMPARE(sentences.front().what, QString("t 95.0, limit 90, for 6 s within 9 s on the ground"));
        QCOMPARE(sentences.front().state, 2);
        QCOMPARE(ReviewText(review).engineRunning(), QString("1 min 59 s"));
        QCOMPARE(review.damaged, (std::vector<std::string>{"rpm", "t"}));
        const QString gaps = ReviewText(review).gaps().join(' ');
        QVERIFY2(gaps.contains("from 0:39 to 1:10, from 1:39 to 1:59"), qPrintable(gaps));
        QVERIFY2(gaps.contains("not to be trusted from 0:50 to 1:19:"), qPrintable(gaps));
    }
};

QTEST_GUILESS_MAIN(TestKeyValues)
#include "TestKeyValues.moc"
