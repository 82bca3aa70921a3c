#include "analysis/SampleSeries.h"

#include <QTest>

#include <cmath>
#include <random>

using namespace ZARN;

namespace {

struct Samples {
    std::vector<double> times;
    std::vector<double> values;
    SampleSeries series;
};

enum EKind { eFloats, eDoubles, eLateDoubles, eBackwards, eOdd, eSparse };

/// Random samples of a kind; every fifth is put by itself, the rest in runs.
Samples make(EKind kind, std::size_t count)
{
    std::mt19937_64 random(kind + count);
    std::uniform_real_distribution<double> share(0, 1);
    Samples out;
    double time = 12.75;
    for (std::size_t i = 0; i < count; ++i) {
        time += kind == eSparse ? 700 * share(random) : share(random) < 0.1 ? 0.0 : 0.02 * share(random);
        if (kind == eBackwards && share(random) < 0.02)
            time = std::max(0.0, time - 30 * share(random));
        out.times.push_back(time);
        double value = static_cast<double>(static_cast<float>(100 * share(random)));
        if (kind == eDoubles || (kind == eLateDoubles && i > count / 2))
            value = 100 * share(random) + 0.1;
        if (kind == eOdd && share(random) < 0.05)
            value = share(random) < 0.5 ? INFINITY : 1e300;
        out.values.push_back(value);
    }
    for (std::size_t i = 0; i < count;) {
        const std::size_t run = std::min(count - i, i % 5 == 0 ? std::size_t(1) : std::size_t(173));
        if (run == 1)
            out.series.append(out.times[i], out.values[i]);
        else
            out.series.append(std::span(out.times).subspan(i, run), std::span(out.values).subspan(i, run));
        i += run;
    }
    return out;
}

std::size_t scanFor(const Samples& samples, double time)
{
    std::size_t i = 0;
    while (i < samples.times.size() && !(samples.times[i] >= time))
        ++i;
    return i;
}

} // namespace

class TestSampleSeries : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void agreesWithScans_data();
    void agreesWithScans();
    void integrates();
    void memory();
};

void TestSampleSeries::agreesWithScans_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("count");
    for (const int count : {0, 1, 2, 63, 64, 65, 1024, 5000}) {
        QTest::addRow("floats %d", count) << static_cast<int>(eFloats) << count;
        QTest::addRow("backwards %d", count) << static_cast<int>(eBackwards) << count;
    }
    QTest::newRow("every level of the pyramid") << static_cast<int>(eFloats) << 70000;
    QTest::newRow("doubles") << static_cast<int>(eDoubles) << 3000;
    QTest::newRow("doubles from the middle on") << static_cast<int>(eLateDoubles) << 3000;
    QTest::newRow("infinite") << static_cast<int>(eOdd) << 3000;
    QTest::newRow("days apart") << static_cast<int>(eSparse) << 3000;
}

void TestSampleSeries::agreesWithScans()
{
    QFETCH(const int, kind);
    QFETCH(const int, count);
    const Samples samples = make(static_cast<EKind>(kind), static_cast<std::size_t>(count));
    const SampleSeries& series = samples.series;
    QCOMPARE(series.size(), samples.times.size());
    for (std::size_t i = 0; i < series.size(); ++i) {
        QCOMPARE(series.time(i), samples.times[i]);
        QVERIFY(series.value(i) == samples.values[i]);
    }
    const double end = samples.times.empty() ? 20 : *std::ranges::max_element(samples.times) + 3;
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> anywhere(9, end);
    std::vector<double> times{-INFINITY, INFINITY, 0, 12, 13, end};
    for (int i = 0; i < 200; ++i)
        times.push_back(i % 4 == 0 && !samples.times.empty() ? samples.times[random() % samples.times.size()] : anywhere(random));
    for (const double time : times) {
        const std::size_t expected = scanFor(samples, time);
        QCOMPARE(series.firstAtOrAfter(time), expected);
        const std::size_t after = scanFor(samples, std::nextafter(time, INFINITY));
        QCOMPARE(series.lastAtOrBefore(time), after == 0 ? std::nullopt : std::optional(after - 1));
    }
    std::vector<uint32_t> positions(257);
    const double step = (end - 9) / 256;
    series.positionsAt(9, step, positions);
    std::vector<ValueRange<double>> ranges(256);
    series.ranges(positions, ranges);
    for (std::size_t i = 0; i < positions.size(); ++i)
        QCOMPARE(positions[i], static_cast<uint32_t>(scanFor(samples, 9 + step * static_cast<double>(i))));
    for (std::size_t i = 0; i < ranges.size(); ++i) {
        ValueRange<double> expected;
        for (std::size_t k = positions[i]; k < positions[i + 1]; ++k)
            expected.add(samples.values[k]);
        QVERIFY(ranges[i].least == expected.least && ranges[i].greatest == expected.greatest);
    }
}

void TestSampleSeries::integrates()
{
    for (const EKind kind : {eFloats, eBackwards, eOdd}) {
        const Samples samples = make(kind, 3000);
        std::mt19937_64 random(3);
        std::uniform_real_distribution<double> anywhere(10, samples.times.back() + 3);
        for (int round = 0; round < 60; ++round) {
            const double a = anywhere(random), from = std::min(a, anywhere(random)), to = std::max(a, from + (round % 3 == 0 ? 0.004 : 5.0));
            double area = 0, seconds = 0, covered = 0;
            for (std::size_t i = 0; i + 1 < samples.times.size(); ++i) {
                const double t0 = samples.times[i], t1 = samples.times[i + 1], v0 = samples.values[i], v1 = samples.values[i + 1];
                const double begin = std::max(from, t0), end = std::min(to, t1);
                if (t1 <= t0 || end <= begin || !std::isfinite(v0 + v1))
                    continue;
                area += (end - begin) * (v0 + (v1 - v0) * ((begin + end) / 2 - t0) / (t1 - t0));
                seconds += end - begin;
            }
            const double found = samples.series.integral(from, to, &covered);
            QVERIFY(std::abs(found - area) <= 1e-9 * std::max(1.0, std::abs(area)) || kind == eOdd);
            QVERIFY(std::abs(covered - seconds) < 1e-8);
        }
    }
}

void TestSampleSeries::memory()
{
    SampleSeries series;
    series.reserve(1000000);
    for (int i = 0; i < 1000000; ++i)
        series.append(i * 0.02, i % 1000);
    QVERIFY(series.bytes() < 13 * 1000000);
    // Times far apart, as damage brings them, make no index grow with them.
    SampleSeries damaged;
    damaged.append(0.0, 1.0);
    damaged.append(1e12, 1.0);
    QVERIFY(damaged.bytes() < 1000000);
}

QTEST_APPLESS_MAIN(TestSampleSeries)
#include "TestSampleSeries.moc"
