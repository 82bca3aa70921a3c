#include "app/SafeFile.h"
#include "export/ExportCsv.h"
#include "export/ExportGpx.h"
#include "export/ExportKml.h"
#include "sim/DemoCard.h"
#include "support/FileHelpers.h"
#include "support/Places.h"
#include "support/TestCycle.h"

#include <QTemporaryDir>
#include <QTest>

#include <limits>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

/// Cancels once it has been told more often than it has patience for, or sooner.
class Impatient : public Progress {
public:
    explicit Impatient(int patience) : mPatience(patience) {}
    void setProgress(int percent) override
    {
        fellBack = fellBack || percent < last || percent > 100;
        last = percent;
        if (++reports == 1 && whenTold)
            whenTold();
    }
    [[nodiscard]] bool isCancelled() const override { return reports > mPatience; }

    int last = 0;
    int reports = 0;
    bool fellBack = false;
    std::function<void()> whenTold; ///< for the first time

private:
    int mPatience;
};

} // namespace

/// Exports that report how far they are, and end when they are told to.
class TestExportCancel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cancelled_data();
    void cancelled();
    void othersAreLoadedMeanwhile();

private:
    void load();
    bool write(const QString& format, Progress& progress);
    std::string target() const { return (mFolder.path() + "/out").toStdString(); }

    QTemporaryDir mFolder;
    QTemporaryDir mCard;
    TestCycle mCycle;
};

void TestExportCancel::initTestCase()
{
    std::string error;
    QVERIFY2(DemoCard().write(mCard.filePath("card").toStdString(), DemoCardOptions{}, error), error.c_str());
    QVERIFY(mCycle.container.readContainer(mCard.filePath("card")));
    load();
    for (const ProfileDevice& device : mCycle.profile.data()) {
        for (const ProfileParameter& parameter : device.parameters)
            mCycle.profile.setSelected(parameter.name, true);
    }
}

void TestExportCancel::load()
{
    mCycle.profile.setCurrentUnit(EUnit::eImperial);
    QVERIFY(mCycle.profile.loadProfile(sourceDir() + "/resources/profiles/915/Profile.xml"));
    QVERIFY(mCycle.container.loadCycle(2, -1));
}

bool TestExportCancel::write(const QString& format, Progress& progress)
{
    const LoadedCard loaded = mCycle.container.loaded();
    if (format == "csv") {
        ExportCsv exporter(loaded.context);
        return exporter.exportData(*loaded.pRecord, {mFolder.path(), "out"}, progress);
    }
    if (format == "kml") {
        const Console quiet([](std::string_view) {}, [](std::string_view) {}, false);
        ExportKml exporter(quiet, loaded.context, mCycle.profile.selection(), {});
        KmlExportOptions options;
        options.directory = mFolder.path().toStdString();
        options.fileName = "out";
        return exporter.exportData(*loaded.pRecord, options, progress);
    }
    SafeFile file(target());
    return ExportGpx().exportData(loaded, file, ExportGpx::eOneTrack, progress);
}

void TestExportCancel::cancelled_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("patience"); // in reports; of the whole work's when negative, from its end
    for (const char* format : {"csv", "kml", "gpx"}) {
        QTest::addRow("%s, at once", format) << format << 0;
        QTest::addRow("%s, halfway", format) << format << 3;
        QTest::addRow("%s, at the end", format) << format << -1;
    }
}

void TestExportCancel::cancelled()
{
    QFETCH(QString, format);
    QFETCH(int, patience);
    Impatient patient(std::numeric_limits<int>::max());
    QVERIFY(write(format, patient));
    QVERIFY2(patient.reports > 4 && !patient.fellBack && patient.last > 80, qPrintable(QString::number(patient.last)));
    putFile(target(), "of yesterday");
    Impatient impatient(patience < 0 ? patient.reports + patience : patience);
    QVERIFY(!write(format, impatient));
    QVERIFY(impatient.reports <= patient.reports);
    QCOMPARE(fileContent(target()), std::string("of yesterday"));
    QCOMPARE(entryCount(mFolder.path().toStdString()), 1L);
}

void TestExportCancel::othersAreLoadedMeanwhile()
{
    for (const char* format : {"csv", "kml", "gpx"}) {
        QVERIFY(write(format, nullProgress()));
        const std::string expected = fileContent(target());
        Impatient disturbing(std::numeric_limits<int>::max());
        disturbing.whenTold = [this] {
            mCycle.profile.clear();
            mCycle.profile.setCurrentUnit(EUnit::eMetric);
            QVERIFY(mCycle.container.loadCycle(1, -1));
        };
        QVERIFY(write(format, disturbing));
        QVERIFY(fileContent(target()) == expected);
        load();
    }
}

QTEST_APPLESS_MAIN(TestExportCancel)
#include "TestExportCancel.moc"
