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
    void integratesFromSampleToSample();
    void interpolates();
    void extremesAndMean();
    void withoutNumbers();
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

/// Ends that are samples, at and around the places where partial sums are kept.
void TestSampleSeries::integratesFromSampleToSample()
{
    SampleSeries series;
    for (int i = 0; i <= 600; ++i)
        series.append(10.0 + i, i % 2 ? 3.0 : 1.0); // each second counts 2
    const auto seconds = [&series](double from, double to) {
        double covered = -1;
        const double area = series.integral(from, to, &covered);
        return area == 2 * covered ? covered : -1;
    };
    for (const int from : {0, 1, 127, 128, 129, 255, 256, 300, 599, 600}) {
        for (const int to : {0, 1, 2, 127, 128, 129, 256, 257, 384, 512, 513, 600, 700})
            QCOMPARE(seconds(10.0 + from, 10.0 + to), std::max(0.0, std::min(to, 600) - static_cast<double>(from)));
    }
    QCOMPARE(series.integral(0, 11), 2.0);
    QCOMPARE(series.integral(10.5, 10.5), 0.0);
    QCOMPARE(series.integral(20, 15), 0.0);
    QVERIFY(std::abs(series.integral(10, 10.5) - 0.75) < 1e-12 && std::abs(series.integral(10.5, 11) - 1.25) < 1e-12);
    QVERIFY(std::abs(series.integral(10.25, 10.75) - 1.0) < 1e-12); // within one stretch
    SampleSeries one;
    double covered = -1;
    one.append(5, 7);
    QVERIFY(one.integral(0, 10, &covered) == 0.0 && covered == 0.0 && SampleSeries().integral(0, 10) == 0.0);
}

void TestSampleSeries::interpolates()
{
    SampleSeries series;
    for (const auto& [time, value] : {std::pair(10.0, 1.0), {20.0, 3.0}, {20.0, 7.0}, {30.0, 5.0}})
        series.append(time, value);
    for (const auto& [time, value] : {std::pair(0.0, 1.0), {10.0, 1.0}, {15.0, 2.0}, {19.0, 2.8}, {20.0, 3.0}, {25.0, 6.0}, {30.0, 5.0}, {99.0, 5.0}})
        QVERIFY2(std::abs(series.interpolated(time) - value) < 1e-12, qPrintable(QString::number(time)));
}

void TestSampleSeries::extremesAndMean()
{
    SampleSeries series;
    QVERIFY(series.extremes().isEmpty() && series.average() == 0.0 && series.empty());
    const double last = 0.1; // from it on values take 8 bytes
    const std::vector<double> times{1, 2, 3, 4, 5}, values{4, INFINITY, std::nan(""), -2, last};
    series.append(times, std::span(values).first(4));
    QVERIFY(series.size() == 4 && series.extremes().least == -2 && series.extremes().greatest == 4 && series.average() == 1.0);
    QVERIFY(series.range(0, 1).least == 4 && series.range(0, 2).greatest == INFINITY && series.range(3, 3).isEmpty());
    series.append(5, last);
    QVERIFY(series.value(4) == last && series.value(0) == 4 && std::isnan(series.value(2)) && series.range(3, 5).greatest == last);
    QCOMPARE(series.average(), 2.1 / 3);
    series.clear();
    QVERIFY(series.empty() && series.extremes().isEmpty() && !series.lastAtOrBefore(9) && series.firstAtOrAfter(0) == 0);
    series.append(7, 1);
    QVERIFY(series.size() == 1 && series.lastAtOrBefore(7) == 0U && !series.lastAtOrBefore(6.9) && series.ascending());
    series.append(7, 2);
    QVERIFY(series.ascending() && series.firstAtOrAfter(7) == 0 && series.lastAtOrBefore(7) == 1U);
    series.append(6, 3);
    QVERIFY(!series.ascending() && !series.lastAtOrBefore(6.5) && series.lastAtOrBefore(7) == 2U && series.firstAtOrAfter(6) == 0);
}

void TestSampleSeries::withoutNumbers()
{
    const double nan = std::nan("");
    SampleSeries series;
    std::vector<uint32_t> positions{9, 9};
    series.positionsAt(0, 1, positions);
    QCOMPARE(positions, (std::vector<uint32_t>{0, 0}));
    for (const double time : {-3.5, 86401.0, 86402.0, 172900.0}) // before power-up, and around the end of what is indexed
        series.append(time, 1);
    for (const auto& [time, first, last] : {std::tuple(-4.0, 0U, -1), {-3.5, 0U, 0}, {0.0, 1U, 0}, {86400.9, 1U, 0}, {86401.0, 1U, 1}, {86401.5, 2U, 1},
                                            {86402.0, 2U, 2}, {90000.0, 3U, 2}, {172900.0, 3U, 3}, {172901.0, 4U, 3}}) {
        QCOMPARE(series.firstAtOrAfter(time), std::size_t(first));
        QCOMPARE(series.lastAtOrBefore(time), last < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(last)));
    }
    QVERIFY(series.firstAtOrAfter(nan) == 4 && !series.lastAtOrBefore(nan));
}

void TestSampleSeries::memory()
{
    SampleSeries series;
    series.reserve(1000001);
    for (int i = 0; i < 1000000; ++i)
        series.append(i * 0.02, i % 1000);
    QVERIFY(series.bytes() < 13 * 1000000 && series.bytes() > 12 * 1000000);
    series.append(20000, 0.1); // 8 bytes a value from now on
    QVERIFY2(series.bytes() > 16 * 1000000 && series.bytes() < 18 * 1000000, std::to_string(series.bytes()).c_str());
    // Times far apart, as damage brings them, make no index grow with them.
    SampleSeries damaged;
    damaged.append(0.0, 1.0);
    damaged.append(1e12, 1.0);
    QVERIFY(damaged.bytes() < 1000000);
}

QTEST_APPLESS_MAIN(TestSampleSeries)
#include "TestSampleSeries.moc"
