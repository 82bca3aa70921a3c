#include "sim/DemoCard.h"
#include "support/Places.h"
#include "tests/sim/CardBytes.h"
#include "support/FullDisk.h"
#include "tests/sim/FlightFinder.h"

#include <QDomDocument>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

using namespace ZARN;

/// One card of the default options is written for most cases; its cycles are read back with the shipped profile.
class TestDemoCard : public QObject {
    Q_OBJECT

private:
    struct Parameter {
        QString device, unit, threshold;
        int type = 0;
        double factor = 1;
    };

    QTemporaryDir mFolder;
    QMap<QString, quint32> mIds; ///< by name, the first of an identifier
    QMap<quint32, Parameter> mParameters;
    QMap<QString, QList<QPair<double, int>>> mThresholds;
    std::vector<Series> mCycles;

    static std::string writeCard(const QString& folder, const DemoCardOptions& options)
    {
        std::string error;
        DemoCard card;
        const bool written = card.write(folder.toStdString(), options, error);
        return written == error.empty() ? error : "result and error text differ";
    }

    static QByteArray bytes(const QString& folder)
    {
        QByteArray all;
        for (const QString& name : CardBytes::files(folder)) {
            QFile file(folder + "/" + name);
            if (file.open(QIODevice::ReadOnly))
                all += name.toUtf8() + file.readAll();
        }
        return all;
    }

    void readThresholds(const QDomElement& root)
    {
        const QStringList states{"OK", "WARNING", "LIMIT"};
        const QDomNodeList lists = root.elementsByTagName("Threshold");
        for (int i = 0; i < lists.size(); ++i) {
            QList<QPair<double, int>> values;
            for (QDomElement v = lists.at(i).firstChildElement("Value"); !v.isNull(); v = v.nextSiblingElement("Value"))
                values << qMakePair(v.attribute("val").toDouble(), int(states.indexOf(v.attribute("state"))));
            mThresholds[lists.at(i).toElement().attribute("name")] = values;
        }
    }

    void readProfile()
    {
        QFile file(sourceDir() + "/resources/profiles/915/Profile.xml");
        QDomDocument document;
        QVERIFY(file.open(QIODevice::ReadOnly) && document.setContent(&file));
        const QStringList types{"", "", "FLOAT", "LONG", "ULONG", "BLONG", "SHORT", "USHORT", "BSHORT", "CHAR", "UCHAR"};
        readThresholds(document.documentElement());
        const QDomNodeList all = document.elementsByTagName("Parameter");
        for (int i = 0; i < all.size(); ++i) {
            const QDomElement p = all.at(i).toElement();
            const quint32 id = p.attribute("id").toUInt();
            mIds.insert(p.attribute("name"), id);
            mParameters.insert(id, {p.parentNode().toElement().attribute("name"), p.attribute("unitMetric"), p.attribute("thresholdId"),
                                    int(types.indexOf(p.attribute("dataType"))), p.attribute("factor", "1").toDouble()});
        }
    }

    /// Reads the card as power cycles: a file without a date begins one.
    void readCycles()
    {
        for (const QString& name : CardBytes::files(mFolder.path())) {
            const CardBytes file(mFolder.filePath(name));
            if (!file.hasDate())
                mCycles.emplace_back();
            for (qsizetype i = 0; i < file.count(); ++i) {
                const StoredRecord record = file.record(i);
                mCycles.back()[record.id].emplace_back(record.seconds(), rawValue(record.payload) * mParameters.value(record.id).factor);
            }
        }
    }

    const std::vector<std::pair<double, double>>& series(std::size_t cycle, const QString& name) { return mCycles[cycle][mIds.value(name)]; }

    int state(const QString& threshold, double value) const
    {
        int result = 0;
        for (const auto& [boundary, boundaryState] : mThresholds.value(threshold)) {
            if (boundary > value)
                break;
            result = boundaryState;
        }
        return result;
    }

    /// How often a value of a parameter enters the state while a flight lasts or, with none, in the whole cycle.
    int entries(std::size_t cycle, const QString& name, int wanted, std::pair<double, double> span)
    {
        int count = 0;
        int before = wanted;
        for (const auto& [time, value] : series(cycle, name)) {
            const int now = state(mParameters.value(mIds.value(name)).threshold, value);
            if (time >= span.first && time <= span.second && now == wanted && before != wanted)
                ++count;
            before = now;
        }
        return count;
    }

    double highest(std::size_t cycle, const QString& name, std::pair<double, double> span)
    {
        double most = -std::numeric_limits<double>::infinity();
        for (const auto& [time, value] : series(cycle, name))
            if (time >= span.first && time <= span.second)
                most = std::max(most, value);
        return most;
    }

    /// All bits that a word of faults shows at some time of the span.
    quint32 faults(std::size_t cycle, quint32 id, std::pair<double, double> span)
    {
        quint32 bits = 0;
        for (const auto& [time, value] : mCycles[cycle][id])
            if (time >= span.first && time <= span.second)
                bits |= static_cast<quint32>(value);
        return bits;
    }

    static constexpr std::pair<double, double> kAlways{0, 1e9};

private Q_SLOTS:
    void initTestCase()
    {
        readProfile();
        QVERIFY(mParameters.size() > 120);
        QCOMPARE(writeCard(mFolder.path(), {}), std::string());
        readCycles();
        QCOMPARE(mCycles.size(), std::size_t(3));
    }

    void sameSeedSameBytes()
    {
        const QTemporaryDir again;
        QCOMPARE(writeCard(again.path(), {}), std::string());
        QVERIFY(bytes(again.path()) == bytes(mFolder.path()));
        const QTemporaryDir other;
        DemoCardOptions options;
        options.seed = 2;
        QCOMPARE(writeCard(other.path(), options), std::string());
        QVERIFY(bytes(other.path()) != bytes(mFolder.path()));
    }

    void bothByteOrdersSayTheSame()
    {
        const QTemporaryDir folder;
        DemoCardOptions options;
        options.bigEndian = true;
        QCOMPARE(writeCard(folder.path(), options), std::string());
        QCOMPARE(CardBytes::files(folder.path()), CardBytes::files(mFolder.path()));
        for (const QString& name : CardBytes::files(folder.path())) {
            const CardBytes big(folder.filePath(name));
            const CardBytes little(mFolder.filePath(name));
            QVERIFY(big.isBigEndian() && !little.isBigEndian());
            QCOMPARE(big.count(), little.count());
            QCOMPARE(big.dateTime(), little.dateTime());
            QCOMPARE(big.headerTicks(), little.headerTicks());
            QCOMPARE(big.identity(), little.identity());
            for (qsizetype i = 0; i < big.count(); ++i)
                if (big.record(i) != little.record(i))
                    QFAIL(qPrintable(QString("%1 %2").arg(name).arg(i)));
        }
    }

    /// Files of a cycle follow each other in time, the recorder starts late, dates agree with the counter.
    void filesAndTimes()
    {
        quint64 last = 0;
        QDateTime powerUp;
        int dated = 0;
        for (const QString& name : CardBytes::files(mFolder.path())) {
            const CardBytes file(mFolder.filePath(name));
            QVERIFY(file.isWhole());
            if (!file.hasDate()) {
                last = 0;
                powerUp = QDateTime();
                QVERIFY(file.record(0).seconds() > 1 && file.record(0).seconds() < 10);
            } else {
                ++dated;
                const QDateTime from = file.dateTime().addMSecs(-qint64(double(file.headerTicks()) / 32000.0));
                QVERIFY(!powerUp.isValid() || qAbs(from.secsTo(powerUp)) <= 1);
                powerUp = from;
            }
            QVERIFY(file.headerTicks() <= file.record(0).ticks);
            for (qsizetype i = 0; i < file.count(); ++i) {
                const quint64 ticks = file.record(i).ticks;
                if (ticks <= last)
                    QFAIL(qPrintable(QString("%1 %2").arg(name).arg(i)));
                last = ticks;
            }
        }
        QVERIFY(dated >= 4);
    }

    void messagesFitTheProfile()
    {
        QMap<quint32, quint8> codes;
        QSet<quint16> kinds;
        for (const QString& name : CardBytes::files(mFolder.path())) {
            const CardBytes file(mFolder.filePath(name));
            if (!file.hasDate())
                codes.clear();
            for (qsizetype i = 0; i < file.count(); ++i) {
                const StoredRecord record = file.record(i);
                const auto parameter = mParameters.constFind(record.id);
                const bool fits = parameter != mParameters.cend() && record.payload[1] == parameter->type && record.payload[2] == 0 &&
                                  quint8(record.payload[3]) == codes[record.id]++;
                if (!fits)
                    QFAIL(qPrintable(QString("%1 %2: %3").arg(name).arg(i).arg(record.id)));
                kinds.insert(record.kind);
            }
        }
        QCOMPARE(QList<quint32>(codes.keys()), QList<quint32>(mParameters.keys()));
        QCOMPARE(kinds, QSet<quint16>({0, 1, 2}));
    }

    /// No value leaves what its unit can mean; a value sent under another's identifier would.
    void valuesArePlausible()
    {
        const QMap<QString, QPair<double, double>> ranges{
            {"rpm", {0, 5600}}, {"%", {-20, 115}}, {"ms", {0, 20}}, {"V", {9, 15}}, {"A", {-200, 60}}, {"°C", {10, 140}}, {"K", {0, 250}},
            {"hPa", {350, 1700}}, {"bar", {0, 7}}, {"l/h", {0, 50}}, {"km/h", {0, 200}}, {"m/s", {-8, 6}}, {"m", {0, 2000}}, {"Nm", {0, 300}},
            {"kW", {0, 130}}, {"g", {0.5, 1.6}}, {"h", {1000, 2000}}, {"s", {-10, 7200}}, {"l", {0, 20000}}, {"°", {-10, 4813}}};
        for (const Series& cycle : mCycles) {
            for (const auto& [id, samples] : cycle) {
                const Parameter parameter = mParameters.value(id);
                if (parameter.unit.isEmpty())
                    continue;
                QPair<double, double> range = ranges.value(parameter.unit, {1, 0});
                if (parameter.threshold == "EGT")
                    range.second = 990;
                for (const auto& [time, value] : samples)
                    if (!(value >= range.first && value <= range.second))
                        QFAIL(qPrintable(QString("%1 at %2: %3").arg(id).arg(time).arg(value)));
            }
        }
    }

    void theSecondCycleHoldsTwoTows()
    {
        QVERIFY(findFlights(series(0, "Ground Speed")).empty());
        QVERIFY(findFlights(series(2, "Ground Speed")).empty());
        const auto flights = findFlights(series(1, "Ground Speed"));
        QCOMPARE(flights.size(), std::size_t(2));
        for (const auto& [takeOff, landing] : flights) {
            const std::pair<double, double> span{takeOff - 30, landing + 30};
            double lowest = 1e9;
            for (const auto& [time, value] : series(1, "Altitude"))
                if (time >= span.first && time <= span.second)
                    lowest = std::min(lowest, value);
            const double gain = highest(1, "Altitude", span) - lowest;
            QVERIFY2(gain > 790 && gain < 830, qPrintable(QString::number(gain)));
            QVERIFY(lowest > 500);
            QVERIFY(highest(1, "Throttle A", span) > 90);
            QVERIFY(highest(1, "Ground Speed", span) < 180);
        }
    }

    /// The aircraft stays near its airfield, and a position never jumps.
    void positionsAreContinuous()
    {
        const auto degrees = [](double value) { return std::trunc(value / 100) + std::fmod(value, 100) / 60; };
        for (const char* name : {"Latitude", "Longitude"}) {
            double before = 0;
            for (const auto& [time, value] : series(1, name)) {
                const double here = degrees(value);
                QVERIFY(value == 0 || std::abs(here - (name[1] == 'a' ? 48.2 : 11.05)) < 0.12);
                QVERIFY2(before == 0 || std::abs(here - before) < 0.0005, qPrintable(QString("%1 %2").arg(name).arg(time)));
                before = here;
            }
        }
        for (const auto& [time, value] : series(2, "Latitude"))
            QCOMPARE(value, 0.0);
    }

    void theStoryIsTold()
    {
        const auto flights = findFlights(series(1, "Ground Speed"));
        QCOMPARE(flights.size(), std::size_t(2));
        const std::pair<double, double> first{flights[0].first - 30, flights[0].second};
        const std::pair<double, double> second{flights[1].first - 30, flights[1].second};
        constexpr int kWarning = 1;
        constexpr int kLimit = 2;
        // The boost overshoots on the first tow; on the second the engine grows too hot.
        for (const auto& [name, hit, spared] : {std::tuple{"Manifold Pressure A", first, second}, {"Coolant Temperature B", second, first},
                                                {"EGT 2 A", second, first}}) {
            QVERIFY2(entries(1, name, kWarning, hit) >= 1 && entries(1, name, kLimit, hit) >= 1, name);
            QVERIFY2(entries(1, name, kWarning, spared) == 0 && entries(1, name, kLimit, spared) == 0, name);
        }
        QVERIFY(entries(1, "Oil Pressure", kLimit, {flights[1].second, 1e9}) >= 1);
        // Lamps: 1 is yellow, 2 is red.
        QCOMPARE(highest(1, "Boost Lamp", first), 2.0);
        QCOMPARE(highest(1, "Boost Lamp", second), 0.0);
        QCOMPARE(highest(1, "Coolant Lamp", first), 0.0);
        QCOMPARE(highest(1, "Coolant Lamp", second), 2.0);
        QCOMPARE(highest(1, "Oil Pressure Lamp", {0, 30}), 2.0);
        QCOMPARE(highest(2, "Generator Lamp", kAlways), 1.0);
        QCOMPARE(highest(2, "Low Voltage Lamp", {60, 400}), 1.0);
        QCOMPARE(highest(0, "Lane A Lamp", kAlways), 2.0);
        QVERIFY(series(1, "Boost Lamp").size() > 1000);
    }

    void faultBitsFollowTheStory()
    {
        const auto flights = findFlights(series(1, "Ground Speed"));
        QCOMPARE(flights.size(), std::size_t(2));
        const std::pair<double, double> first{flights[0].first, flights[0].second};
        const std::pair<double, double> second{flights[1].first, flights[1].second};
        const auto bit = [](int number) { return 1U << number; };
        QCOMPARE(faults(1, 1200, first), bit(4) | bit(14) | bit(15));
        QCOMPARE(faults(1, 1201, first), bit(4) | bit(14) | bit(15) | bit(22));
        QCOMPARE(faults(1, 1200, second), bit(4) | bit(8) | bit(9) | bit(10) | bit(11));
        QCOMPARE(faults(2, 1200, {300, 400}), bit(5) | bit(6) | bit(17) | bit(18));
        QVERIFY((faults(0, 1200, kAlways) & (bit(0) | bit(1) | bit(7))) == (bit(0) | bit(1) | bit(7)));
    }

    /// The lane whose sensor drops out goes on with the last good value; the other lane still measures.
    void aLostSensorIsSubstituted()
    {
        double lost = 0;
        for (const auto& [time, value] : series(1, "Sensor EGT 3 B"))
            if (lost == 0 && value == 4)
                lost = time;
        QVERIFY(lost > 0);
        QMap<QString, QSet<double>> values;
        for (const char* name : {"EGT 3 A", "EGT 3 B"})
            for (const auto& [time, value] : series(1, name))
                if (time > lost && time < lost + 10)
                    values[name].insert(value);
        QCOMPARE(values["EGT 3 B"].size(), 1);
        QVERIFY(values["EGT 3 A"].size() > 10);
    }

    /// Asking for more hours appends to the same card and changes nothing of its beginning.
    void moreHoursAppendFlightCycles()
    {
        const QTemporaryDir folder;
        DemoCardOptions options;
        options.hours = 2;
        QCOMPARE(writeCard(folder.path(), options), std::string());
        const QStringList names = CardBytes::files(folder.path());
        const QStringList story = CardBytes::files(mFolder.path());
        QVERIFY(names.size() > story.size());
        QVERIFY(bytes(folder.path()).startsWith(bytes(mFolder.path())));
        double seconds = 0;
        for (const QString& name : names) {
            const CardBytes file(folder.filePath(name));
            seconds += file.record(file.count() - 1).seconds() - file.record(0).seconds();
        }
        QVERIFY2(seconds > 7100 && seconds < 7200 + 3 * 3600, qPrintable(QString::number(seconds)));
        QVERIFY(!CardBytes(folder.filePath(names[story.size()])).hasDate());
    }

    void failuresNameThePlace()
    {
        QTemporaryDir folder;
        const std::string inside = folder.filePath("new/deep").toStdString();
        {
            const FullDisk limit(1'000'000);
            QCOMPARE(writeCard(folder.filePath("new/deep"), {}), inside + "/LOG00001.CAN: File too large");
        }
        QVERIFY(QDir(folder.filePath("new/deep")).isEmpty());

        QFile file(folder.filePath("file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QCOMPARE(writeCard(folder.filePath("file"), {}), folder.filePath("file").toStdString() + ": Not a directory");
        QCOMPARE(writeCard(folder.filePath("file/below"), {}), folder.filePath("file/below").toStdString() + ": Not a directory");

        const QByteArray before = bytes(mFolder.path());
        QCOMPARE(writeCard(mFolder.path(), {}), mFolder.path().toStdString() + ": holds the record file LOG00001.CAN already");
        QVERIFY(bytes(mFolder.path()) == before);
    }

    void hoursAreChecked()
    {
        const QTemporaryDir folder;
        for (const double hours : {-1.0, 10001.0, std::nan(""), std::numeric_limits<double>::infinity()}) {
            DemoCardOptions options;
            options.hours = hours;
            QCOMPARE(writeCard(folder.path(), options), std::string("hours: must be a number from 0 to 10000"));
        }
        QVERIFY(QDir(folder.path()).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestDemoCard)
#include "test_demo_card.moc"
