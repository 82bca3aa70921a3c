#include "analysis/CycleReview.h"
#include "analysis/IncidentText.h"
#include "sim/DemoCard.h"
#include "support/FileHelpers.h"
#include "support/FullDisk.h"
#include "support/Places.h"
#include "support/TestCycle.h"
#include "trace/TraceSet.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <limits>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

std::string writeCard(const QString& folder, const DemoCardOptions& options = {})
{
    std::string error;
    const bool written = DemoCard().write(folder.toStdString(), options, error);
    return written == error.empty() ? error : "result and error text differ";
}

QStringList files(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

QByteArray bytes(const QString& folder)
{
    QByteArray all;
    for (const QString& name : files(folder))
        all += name.toUtf8() + QByteArray::fromStdString(fileContent(folder.toStdString() + "/" + name.toStdString()));
    return all;
}

/// A card as the program reads it, with the profile that is shipped.
struct Reading : TestCycle {
    explicit Reading(const QString& folder, const std::string& variant = {})
    {
        if (!profile.loadProfile(sourceDir() + "/resources/profiles/915/Profile.xml", variant) || !container.readContainer(folder))
            qFatal("the card cannot be read");
    }
    /// "limit, 26 standing, 3 told: 746 1050", the last the starts of the incidents in whole seconds.
    QString review(unsigned int cycle)
    {
        container.loadCycle(cycle, -1);
        const CycleReview review = reviewCycle(container.values(), container.loadedCycle()->flights, container.endTime());
        const auto told = IncidentText(QLocale(QLocale::English, QLocale::UnitedStates)).sentences(review.incidents);
        QString text = QString("%1, %2 standing, %3 told:").arg(verdictKey(review.verdict)).arg(review.standing.size()).arg(told.size());
        for (const Incident& incident : review.incidents)
            text += QString(" %1").arg(std::round(incident.start));
        if (!told.empty())
            sentence = told.back().time + " " + told.back().text();
        return text;
    }
    QString sentence; ///< the last of the reviewed cycle
};

} // namespace

/// One card of the default options is written for most cases.
class TestDemoCard : public QObject {
    Q_OBJECT

private:
    QTemporaryDir mFolder;

private Q_SLOTS:
    void initTestCase() { QCOMPARE(writeCard(mFolder.path()), std::string()); }

    void theSameOptionsGiveTheSameBytes()
    {
        const QTemporaryDir again;
        QCOMPARE(writeCard(again.path()), std::string());
        QVERIFY(bytes(again.path()) == bytes(mFolder.path()));
        const QTemporaryDir longer; // more hours append to the same card
        QCOMPARE(writeCard(longer.path(), {.hours = 2}), std::string());
        QVERIFY(bytes(longer.path()).startsWith(bytes(mFolder.path())) && bytes(longer.path()) != bytes(mFolder.path()));
    }

    void theStoryIsTold_data()
    {
        QTest::addColumn<QString>("variant");
        QTest::addColumn<bool>("bigEndian");
        QTest::addColumn<QString>("secondCycle");
        const char* const story = "limit, 26 standing, 3 told: 738 1099 1129 1159 1189 2023";
        QTest::newRow("no variant") << "" << false << story;
        QTest::newRow("wider limits") << "916 A" << false << story;
        QTest::newRow("big-endian") << "915 A" << true << story;
    }

    void theStoryIsTold()
    {
        QFETCH(QString, variant);
        QFETCH(bool, bigEndian);
        const QTemporaryDir other;
        if (bigEndian)
            QCOMPARE(writeCard(other.path(), {.bigEndian = true}), std::string());
        Reading card(bigEndian ? other.path() : mFolder.path(), variant.toStdString());
        CardContainer& container = card.container;
        QVERIFY(container.problems().empty() && container.recordCycles().size() == 3);
        QVERIFY(container.recordCycles().at(1).dateTime.isValid() && !container.recordCycles().at(3).dateTime.isValid());
        QVERIFY(container.loadCycle(1, -1) && container.loadedCycle()->flights.empty());
        QVERIFY(container.loadCycle(2, -1));
        const std::vector<RecordFlight>& flights = container.loadedCycle()->flights;
        QCOMPARE(flights.size(), std::size_t(2));
        for (const RecordFlight& flight : flights) {
            QVERIFY(flight.totalClimb > 790 && flight.totalClimb < 830);
            QVERIFY(flight.averageClimbRate > 2 && flight.averageClimbRate < 4);
            QVERIFY(flight.maxGroundSpeed > 120 && flight.maxGroundSpeed < 180);
            QVERIFY(flight.takeOffDistance > 200 && flight.takeOffDistance15m > flight.takeOffDistance + 50 && flight.takeOffDistance15m < 600);
            QVERIFY(flight.totalFuel > 3 && flight.totalFuel < 8);
        }
        // The boost overshoots on the first tow, then a sensor drops out four times; on the second the engine grows too hot.
        QFETCH(QString, secondCycle);
        QCOMPARE(card.review(2), secondCycle);
        QCOMPARE(card.sentence, QString("18:19 EGT 3 sensor B, with Lane B Lamp yellow, 4 times, 18:19 to 20:02"));
        QCOMPARE(card.review(1), QString("ok, 26 standing, 0 told:"));
        QCOMPARE(card.review(3), QString("limit, 33 standing, 1 told: 142"));
        QVERIFY(container.loadCycle(2, 0) && container.flightPath().size() > 800);
        for (const ProfileDevice& device : card.profile.data()) {
            for (const ProfileParameter& parameter : device.parameters) {
                int state = 0;
                QColor colour;
                const RecordEntry last = container.recordData().channel(parameter.identifier())->last();
                const std::string text = card.profile.getDataString(last, parameter, state, colour);
                QVERIFY2(!text.empty() && text.find("nvalid") == std::string::npos, (parameter.path + ": " + text).c_str());
            }
        }
    }

    void aFailedRunLeavesNothingInTheWay()
    {
        QTemporaryDir folder;
        const QString inside = folder.filePath("new/deep");
        for (const rlim_t most : {100, 1'000'000}) {
            const FullDisk limit(most);
            QVERIFY(QString::fromStdString(writeCard(inside)).endsWith("LOG00001.CAN: File too large"));
            QVERIFY(files(inside).isEmpty());
        }
        // A run that was ended left its files aside.
        QVERIFY(QDir().mkpath(inside + "/.zarn-simulate"));
        putFile(inside.toStdString() + "/.zarn-simulate/LOG00001.CAN", "half");
        QCOMPARE(writeCard(inside), std::string());
        QCOMPARE(files(inside), files(mFolder.path()));
    }

    void refusals()
    {
        const QTemporaryDir folder;
        for (const double hours : {-1.0, 10001.0, std::nan(""), std::numeric_limits<double>::infinity()})
            QCOMPARE(writeCard(folder.path(), {.hours = hours}), std::string("hours: must be a number from 0 to 10000"));
        QVERIFY(files(folder.path()).isEmpty());
        const QString file = folder.filePath("file");
        putFile(file.toStdString(), "");
        for (const QString& path : {file, file + "/below"})
            QCOMPARE(writeCard(path), path.toStdString() + ": Not a directory");
        const QByteArray before = bytes(mFolder.path());
        QCOMPARE(writeCard(mFolder.path()), mFolder.path().toStdString() + ": holds the record file LOG00001.CAN already");
        QVERIFY(bytes(mFolder.path()) == before);
    }
};

QTEST_GUILESS_MAIN(TestDemoCard)
#include "test_demo_card.moc"
