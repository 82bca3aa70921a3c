#include "analysis/LimitEvents.h"
#include "analysis/WarningEvents.h"
#include "support/CardBuilder.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

#include <QTest>

#include <limits>
#include <random>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

/// "time:state:text[:colour]" of every event.
QString described(const EventList& list, bool withColour = false)
{
    QStringList events;
    for (const Event& event : list.events()) {
        events << QString("%1:%2:%3").arg(event.time).arg(event.state).arg(QString::fromStdString(list.text(event)));
        if (withColour)
            events.back() += ":" + (event.colour.isValid() ? event.colour.name() : "none");
    }
    return events.join(", ");
}

/// The numbers of a text like "70 90 nan", one a second from 1 s on, as FLOAT samples.
void addFloats(RecordFileBuilder& file, uint32_t identifier, const QString& text)
{
    double time = 0;
    for (const QString& number : text.split(' ', Qt::SkipEmptyParts))
        file.addFloat(identifier, ++time, number.toFloat());
}

/// To be used within one expression.
ProfileBuilder& limitProfile(ProfileBuilder&& builder = ProfileBuilder())
{
    builder.unit("C", "F", 2, 1).unit("K", "R", std::numeric_limits<double>::infinity());
    builder.thresholds("Limits", {{0, "OK", "green"}, {80, "WARNING", "yellow"}, {100, "LIMIT", "#ff0000"}});
    builder.thresholds("Colourless", {{50, "WARNING", "no colour"}});
    builder.thresholds("Unordered", {{50, "WARNING", "yellow"}, {100, "LIMIT", "red"}, {70, "OK", "green"}});
    builder.thresholds("Equal", {{50, "WARNING", "yellow"}, {50, "LIMIT", "red"}});
    builder.enumeration("Modes", {{1, "On"}});
    return builder;
}

/// The walk over the list as it is written, sample by sample.
std::vector<double> eventTimesByScan(Profile& profile, const RecordChannel& channel, const ProfileParameter& parameter)
{
    std::vector<double> times;
    int previous = 2;
    for (const RecordEntry entry : channel.entries) {
        int state = 0;
        QColor colour;
        const std::string text = profile.getDataString(entry, parameter, state, colour);
        if (((previous == 0 && state != 0) || (previous == 1 && state == 2)) && text != "nan")
            times.push_back(entry.time);
        previous = state;
    }
    return times;
}

} // namespace

class TestEvents : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void limits_data();
    void limits();
    void limitsEqualTheLiteralWalk();
    void lamps_data();
    void lamps();
    void rowOfATime();
    void weightiest();
};

void TestEvents::limits_data()
{
    QTest::addColumn<QString>("attributes"); // "key=value" ...
    QTest::addColumn<QString>("values");
    QTest::addColumn<QString>("expected");

    const QString limits = "thresholdId=Limits precision=0";
    QTest::newRow("up through both bands") << limits << "70 90 110 70" << "2:1:Engine T 90 :#ffff00, 3:2:Engine T 110 :#ff0000";
    QTest::newRow("outside from the start") << limits << "90 90 70 90" << "4:1:Engine T 90 :#ffff00";
    QTest::newRow("on the boundary") << limits << "79 80 99 100" << "2:1:Engine T 80 :#ffff00, 4:2:Engine T 100 :#ff0000";
    QTest::newRow("not a number is dropped, but was the state") << limits << "70 nan 110 70 90" << "5:1:Engine T 90 :#ffff00";
    QTest::newRow("infinite") << limits << "70 inf -inf inf" << "2:2:Engine T inf :#ff0000, 4:2:Engine T inf :#ff0000";
    QTest::newRow("a colour that is none") << "thresholdId=Colourless precision=0" << "10 60" << "2:1:Engine T 60 :none";
    QTest::newRow("list out of order") << "thresholdId=Unordered precision=0" << "10 75 10 120" << "2:1:Engine T 75 :#ffff00";
    QTest::newRow("equal boundaries") << "thresholdId=Equal precision=0" << "10 50" << "2:2:Engine T 50 :#ff0000";
    QTest::newRow("unit") << limits + " unitMetric=C unitImperial=C" << "70 90" << "2:1:Engine T 90 C:#ffff00";
    QTest::newRow("imperial: limits are metric, the text is not") << limits + " unitMetric=C unitImperial=F imperial" << "70 90"
                                                                  << "2:1:Engine T 181 F:#ffff00";
    QTest::newRow("conversion to no number") << "thresholdId=Limits factor=0 offset=0 unitMetric=K unitImperial=R imperial" << "70 90" << "";
}

void TestEvents::limits()
{
    QFETCH(QString, attributes);
    QFETCH(QString, values);
    TestCycle cycle;
    ProfileBuilder::Attributes more;
    for (const QString& attribute : attributes.split(' ')) {
        if (attribute == "imperial")
            cycle.profile.setCurrentUnit(EUnit::eImperial);
        else
            more.emplace_back(attribute.section('=', 0, 0), attribute.section('=', 1));
    }
    QVERIFY(limitProfile().device("Engine").parameter("T", 10, "FLOAT", more).load(cycle.profile));
    RecordFileBuilder file;
    addFloats(file, 10, values);
    RecordData data;
    file.fill(data);
    QTEST(described(limitEvents(data, cycle.profile), true), "expected");
}

void TestEvents::limitsEqualTheLiteralWalk()
{
    std::mt19937 random(7);
    const std::vector<double> boundaries{-100, 0, 50, 50, 80, 100, kNan, std::numeric_limits<double>::infinity()};
    const auto pick = [&random](const auto& from) { return from[random() % from.size()]; };
    for (int round = 0; round < 200; ++round) {
        std::vector<ProfileBuilder::Boundary> list;
        for (auto n = random() % 6; n > 0; --n)
            list.push_back({pick(boundaries), pick(QStringList{"OK", "WARNING", "LIMIT"}), "red"});
        TestCycle cycle;
        QVERIFY(ProfileBuilder().thresholds("L", list).device("D").parameter("P", 10, "FLOAT", {{"thresholdId", "L"}}).load(cycle.profile));
        RecordFileBuilder file;
        for (int i = 0; i < 2500; ++i) { // more than one chunk of records
            const double value = random() % 8 == 0 ? pick(boundaries) : static_cast<double>(random() % 240) - 120;
            file.addFloat(10, i * 0.25, static_cast<float>(value));
        }
        RecordData data;
        file.fill(data);
        std::vector<double> times;
        const EventList found = limitEvents(data, cycle.profile);
        for (const Event& event : found.events())
            times.push_back(event.time);
        QCOMPARE(times, eventTimesByScan(cycle.profile, *data.channel(10), cycle.profile.model().parameter(10)));
    }
}

void TestEvents::lamps_data()
{
    QTest::addColumn<QList<int>>("states");
    QTest::addColumn<QString>("expected");

    const QString first = ":1:WarningLamp Oil 1 :#ff9664";
    const QString second = ":2:WarningLamp Oil 2 :#ff6464";
    QTest::newRow("lit from the first sample") << QList{1, 1, 1} << "1" + first;
    QTest::newRow("lit again is not told again") << QList{0, 1, 0, 1} << "2" + first;
    QTest::newRow("another state after the dark") << QList{1, 0, 2} << "1" + first + ", 3" + second;
    QTest::newRow("states without a colour") << QList{3, -1} << "1:3:WarningLamp Oil 3 :none, 2:-1:WarningLamp Oil -1 :none";
}

void TestEvents::lamps()
{
    QFETCH(QList<int>, states);
    TestCycle cycle;
    QVERIFY(ProfileBuilder().device("WarningLamp").parameter("Oil", 10, "SHORT").load(cycle.profile));
    RecordFileBuilder file;
    double time = 0;
    for (const int state : states)
        file.addShort(10, ++time, static_cast<uint16_t>(state), 6);
    RecordData data;
    file.fill(data);
    QTEST(described(warningEvents(data, cycle.profile), true), "expected");
}

void TestEvents::rowOfATime()
{
    TestCycle cycle;
    QVERIFY(ProfileBuilder().device("WarningLamp").parameter("A", 10, "UCHAR").load(cycle.profile));
    RecordData data;
    RecordFileBuilder file;
    for (const auto& [time, state] : {std::pair(1.0, 1), {2.0, 2}, {2.01, 3}, {4.0, 4}})
        file.add(10, time, bytePayload(static_cast<uint8_t>(state)));
    file.fill(data);
    const EventList list = warningEvents(data, cycle.profile);
    QVERIFY(!list.rowAt(-3) && !list.rowAt(0.94));
    QCOMPARE(list.rowAt(1.94), 0U);
    QCOMPARE(list.rowAt(1.96), 2U); // rounded to 2.0 s, of which two events are
    QCOMPARE(list.rowAt(3.0), 2U);
    QCOMPARE(list.rowAt(1e30), 3U);
    QVERIFY(!list.rowAt(kNan) && !EventList().rowAt(5));
}

void TestEvents::weightiest()
{
    TestCycle cycle;
    QVERIFY(limitProfile().device("Engine").parameter("T", 10, "FLOAT", {{"thresholdId", "Limits"}}).load(cycle.profile));
    cycle.profile.setFormulas({{"F", "T", "", 0, {}, {}, {}, 85.0}});
    RecordFileBuilder file;
    addFloats(file, 10, "70 90 70 110 70 90 70 90");
    RecordData data;
    file.fill(data);
    const EventList list = limitEvents(data, cycle.profile);
    const auto times = [&list](std::size_t most) {
        QStringList shown;
        for (const Event* pEvent : list.weightiest(most))
            shown << QString::number(pEvent->time) + QString::fromStdString(list.source(*pEvent).parameter);
        return shown.join(' ');
    };
    QCOMPARE(times(8), "2T 2F 4T 4F 6T 6F 8T 8F");
    QCOMPARE(times(5), "2T 2F 4T 6T 8T");
    QCOMPARE(times(2), "2T 4T");
}

QTEST_GUILESS_MAIN(TestEvents)
#include "TestEvents.moc"
