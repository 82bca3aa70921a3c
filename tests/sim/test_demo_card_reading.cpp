#include "app/Console.h"
#include "app/Progress.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "sim/DemoCard.h"
#include "support/Places.h"

#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace ZARN;

/// The demo card as the program itself reads it, with the profile that is shipped.
class TestDemoCardReading : public QObject {
    Q_OBJECT

private:
    QTemporaryDir mFolder;
    Console mConsole{[](std::string_view) {}, [](std::string_view) {}};

    static QString profilePath() { return sourceDir() + "/resources/profiles/915/Profile.xml"; }

    static bool within(double value, double low, double high)
    {
        if (!(value >= low && value <= high))
            qWarning("%f is not within %f and %f", value, low, high);
        return value >= low && value <= high;
    }

private Q_SLOTS:
    void initTestCase()
    {
        std::string error;
        DemoCard card;
        QVERIFY2(card.write(mFolder.path().toStdString(), {}, error), error.c_str());
    }

    void threeCycles()
    {
        Profile profile(mConsole);
        CardContainer container(mConsole, profile, nullProgress());
        QVERIFY(container.readContainer(mFolder.path()));
        const std::map<uint32_t, RecordCycle>& cycles = container.recordCycles();
        QCOMPARE(cycles.size(), std::size_t(3));
        QVERIFY(cycles.at(1).files.size() >= 2 && cycles.at(2).files.size() >= 4);
        QCOMPARE(cycles.at(3).files.size(), std::size_t(1));
        // The back-fill gives the first two the moment of power-up; nothing tells that of the third.
        QVERIFY(cycles.at(1).dateTime.isValid() && cycles.at(1).dateTime < cycles.at(2).dateTime);
        QVERIFY(!cycles.at(3).dateTime.isValid());
    }

    void flightsHaveASensibleStatistic_data()
    {
        QTest::addColumn<QString>("variant");
        for (const char* variant : {"", "915 A", "915 B", "916 A"})
            QTest::addRow("variant <%s>", variant) << variant;
    }

    void flightsHaveASensibleStatistic()
    {
        QFETCH(QString, variant);
        Profile profile(mConsole);
        QVERIFY(profile.loadProfile(profilePath(), variant.toStdString()));
        CardContainer container(mConsole, profile, nullProgress());
        QVERIFY(container.readContainer(mFolder.path()) && container.loadCycle(2, -1));
        QCOMPARE(container.loadedCycle()->flights.size(), std::size_t(2));
        for (const RecordFlight& flight : container.loadedCycle()->flights) {
            QVERIFY(flight.valid);
            QVERIFY(within(flight.landingTime - flight.takeOffTime, 400, 1000));
            QVERIFY(within(flight.totalClimb, 790, 830));
            QVERIFY(within(flight.averageClimbRate, 2, 4));
            QVERIFY(within(flight.averageDescendRate, 1.5, 5));
            QVERIFY(within(flight.maxGroundSpeed, 120, 180));
            QVERIFY(within(flight.takeOffDistance, 200, 400));
            QVERIFY(within(flight.takeOffDistance15m, flight.takeOffDistance + 50, 600));
            QVERIFY(within(flight.totalFuel, 3, 8));
            QVERIFY(within(flight.fuelA / flight.fuelB, 0.98, 1.02));
        }
        const RecordFlight first = container.loadedCycle()->flights.front();
        QVERIFY(container.loadCycle(2, 0));
        QVERIFY(container.flightPath().size() > 800);
        QVERIFY(first.dateTime.isValid());
    }

    /// Every sample of every parameter has a text, and enumerations know each number that is sent.
    void everyTextIsValid()
    {
        Profile profile(mConsole);
        QVERIFY(profile.loadProfile(profilePath(), ""));
        CardContainer container(mConsole, profile, nullProgress());
        QVERIFY(container.readContainer(mFolder.path()) && container.loadCycle(2, -1));
        int texts = 0;
        for (const ProfileDevice& device : profile.data()) {
            for (const ProfileParameter& parameter : device.parameters) {
                int state = 0;
                QColor colour;
                std::size_t skipped = 0;
                const RecordChannel* channel = container.recordData().channel(static_cast<uint32_t>(parameter.id));
                QVERIFY2(channel != nullptr, parameter.path.c_str());
                for (const RecordEntry& entry : channel->entries) {
                    if (skipped++ % 7 != 0)
                        continue;
                    const std::string text = profile.getDataString(entry, parameter, state, colour);
                    ++texts;
                    QVERIFY2(!text.empty() && text.find("nvalid") == std::string::npos && text.find("not implemented") == std::string::npos &&
                                 text.find("nan") == std::string::npos,
                             (parameter.path + ": " + text).c_str());
                }
            }
        }
        QVERIFY(texts > 100000);
    }
};

QTEST_GUILESS_MAIN(TestDemoCardReading)
#include "test_demo_card_reading.moc"
