#include "app/Property.h"
#include "export/ui/ColourButton.h"
#include "export/ui/DialogExportCsv.h"
#include "export/ui/DialogExportKml.h"
#include "export/ui/ExportOutlook.h"
#include "export/ui/ExportProgress.h"
#include "project/Project.h"
#include "support/CardBuilder.h"
#include "support/FileHelpers.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"
#include "ui/main/Answer.h"

#include <QColorDialog>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

/// The wizards over settings of their own; a second fixture over the same folder is the next start of the program.
struct Wizards : TestCycle {
    explicit Wizards(const QString& folder)
    {
        property.setConfigFile((folder + "/ZARN.ini").toStdString());
        property.readXmlFile();
        session.emplace(Session{console, property, profile, container, project});
    }
    Property property{console};
    Project project{console, profile};
    std::optional<Session> session;
};

QWizard* wizard(QWidget* pModal)
{
    auto* pWizard = qobject_cast<QWizard*>(pModal);
    if (!pWizard)
        qFatal("%s is no wizard", qPrintable(pModal->windowTitle()));
    return pWizard;
}

void press(QWizard* pWizard, QWizard::WizardButton button)
{
    QTest::mouseClick(pWizard->button(button), Qt::LeftButton);
}

/// Types over what an entry holds.
void type(QWidget* pWindow, const char* entry, const QString& text)
{
    auto* pEntry = pWindow->findChild<QLineEdit*>(entry);
    pEntry->setFocus();
    pEntry->selectAll();
    QTest::keyClicks(pEntry, text);
}

void chooseLast(QWidget* pWindow, const char* list)
{
    QTest::keyClick(pWindow->findChild<QComboBox*>(list), Qt::Key_End);
}

QString warning(QWidget* pWindow)
{
    return qobject_cast<QWizard*>(pWindow)->currentPage()->findChild<QLabel*>("warning")->text();
}

} // namespace

/// The export wizards as their user meets them.
class TestDialogExport : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { mFolder.emplace(); }
    void csvRemembers();
    void paths_data();
    void paths();
    void existingFileIsAskedAboutOnce();
    void kmlRemembers();
    void sizeIsToldBefore();
    void progressIsSeenAndCancelled();

private:
    QString folder() const { return mFolder->path(); }
    std::optional<QTemporaryDir> mFolder;
};

void TestDialogExport::csvRemembers()
{
    CsvExportOptions options{".", "ExportZarn.csv"};
    Wizards first(folder());
    Answer answer([&](QWidget* pModal) {
        QCOMPARE(pModal->findChild<QLineEdit*>("fileName")->text(), QString("ExportZarn.csv"));
        type(pModal, "directory", folder());
        type(pModal, "fileName", "a b.csv");
        press(wizard(pModal), QWizard::NextButton);
        chooseLast(pModal, "limiter");
        chooseLast(pModal, "form");
        QVERIFY(!pModal->findChild<QComboBox*>("limiter")->isEnabled()); // the computer has its own
        chooseLast(pModal, "resolution");
        chooseLast(pModal, "parameters");
        QVERIFY(!warning(pModal).isEmpty()); // nothing is loaded
        press(wizard(pModal), QWizard::FinishButton);
    });
    QVERIFY(DialogExportCsv(*first.session).getOptions(options));
    QVERIFY(options.directory == folder() && options.fileName == "a b.csv");
    QVERIFY(options.separator == '\t' && options.resolution == 10 && !options.allParameters && options.locale == "system");

    Wizards next(folder());
    QCOMPARE(next.property.getString("CsvExportDir", ""), folder().toStdString());
    QCOMPARE(next.property.getInt("CsvLimiter", 0), 9);
    CsvExportOptions again{".", "ExportZarn.csv"};
    Answer second([&](QWidget* pModal) {
        QCOMPARE(pModal->findChild<QLineEdit*>("directory")->text(), folder());
        press(wizard(pModal), QWizard::NextButton);
        press(wizard(pModal), QWizard::FinishButton);
    });
    QVERIFY(DialogExportCsv(*next.session).getOptions(again));
    QVERIFY(again.fileName == "ExportZarn.csv" && again.separator == '\t' && again.resolution == 10 && !again.allParameters);
    QCOMPARE(again.locale, QString("system"));
}

void TestDialogExport::paths_data()
{
    QTest::addColumn<QString>("directory"); // "~" stands for the test's folder
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("problem"); // empty: the user may not even try
    QTest::newRow("missing folder") << "~/no <b>where</b>" << "a.csv" << "/no <b>where</b> does not exist";
    QTest::newRow("folder for a file") << "~" << "sub" << "is a folder, not a file";
    QTest::newRow("recording") << "~" << "LOG1.CAN" << "is a recording of this card";
    QTest::newRow("folder in the name") << "~" << "sub/a.csv" << "cannot hold";
    QTest::newRow("nothing may be written") << "/proc" << "a.csv" << "Nothing can be written to the folder /proc";
    QTest::newRow("no name") << "~" << " " << "";
}

void TestDialogExport::paths()
{
    QFETCH(QString, directory);
    QFETCH(QString, name);
    QFETCH(QString, problem);
    putFile(folder().toStdString() + "/file", "");
    std::filesystem::create_directory(folder().toStdString() + "/sub");
    putFile(folder().toStdString() + "/LOG1.CAN", RecordFileBuilder().addFloat(500, 1, 1).bytes().toStdString());
    Wizards wizards(folder());
    QVERIFY(wizards.container.readContainer(folder()));
    CsvExportOptions options{".", "out.csv"};
    Answer answer([&](QWidget* pModal) {
        type(pModal, "directory", directory.replace('~', folder()));
        type(pModal, "fileName", name);
        QCOMPARE(wizard(pModal)->button(QWizard::NextButton)->isEnabled(), !problem.isEmpty());
        press(wizard(pModal), QWizard::NextButton);
        QVERIFY2(warning(pModal).contains(problem), qPrintable(warning(pModal)));
        QVERIFY(wizard(pModal)->currentPage()->findChild<QLineEdit*>("directory")); // still there
        pModal->close();
    });
    QVERIFY(!DialogExportCsv(*wizards.session).getOptions(options));
    QCOMPARE(entryCount(folder().toStdString()), 3L);
}

void TestDialogExport::existingFileIsAskedAboutOnce()
{
    putFile(folder().toStdString() + "/out.csv", "of yesterday");
    Wizards wizards(folder());
    wizards.property.setString("CsvExportDir", folder().toStdString());
    CsvExportOptions options{".", "out.csv"};
    Answer answer([&](QWidget* pModal) {
        const QWizardPage* pFirst = wizard(pModal)->currentPage();
        {
            Answer no(Answer::press("&No"));
            press(wizard(pModal), QWizard::NextButton);
            QVERIFY(no.text.contains("out.csv exists already"));
        }
        QVERIFY(wizard(pModal)->currentPage() == pFirst);
        {
            Answer yes(Answer::press("&Yes"));
            press(wizard(pModal), QWizard::NextButton);
            QVERIFY(!yes.text.isEmpty());
        }
        QVERIFY(wizard(pModal)->currentPage() != pFirst);
        press(wizard(pModal), QWizard::BackButton);
        press(wizard(pModal), QWizard::NextButton); // a question would wait for ever
        press(wizard(pModal), QWizard::FinishButton);
    });
    QVERIFY(DialogExportCsv(*wizards.session).getOptions(options));
    QCOMPARE(fileContent(folder().toStdString() + "/out.csv"), std::string("of yesterday"));
}

void TestDialogExport::kmlRemembers()
{
    Wizards first(folder());
    first.property.setString("KmlExportDir", folder().toStdString());
    KmlExportOptions options;
    options.fileName = "Card.kml";
    Answer answer([](QWidget* pModal) {
        const auto spin = [&](const char* name, const char* number) {
            auto* pSpin = pModal->findChild<QSpinBox*>(name);
            pSpin->selectAll();
            QTest::keyClicks(pSpin, number);
        };
        press(wizard(pModal), QWizard::NextButton);
        spin("timeStamp", "5");
        spin("lineWidth", "4");
        Answer colour([](QWidget* pChooser) {
            auto* pDialog = qobject_cast<QColorDialog*>(pChooser);
            pDialog->setCurrentColor(QColor(1, 2, 3, 51));
            QTest::keyClick(pDialog, Qt::Key_Return);
        });
        QTest::mouseClick(pModal->findChild<ColourButton*>("lineColour"), Qt::LeftButton);
        QCOMPARE(colour.title, QString("Select Line Color"));
        QTest::keyClick(pModal->findChild<QGroupBox*>("polygon"), Qt::Key_Space);
        QTest::keyClick(pModal->findChild<QWidget*>("track"), Qt::Key_Space);
        QVERIFY(wizard(pModal)->currentPage()->findChild<QLabel*>("warning")->isVisible()); // nothing that is loaded has a clock
        press(wizard(pModal), QWizard::NextButton);
        spin("interval", "77");
        QTest::keyClick(pModal->findChild<QGroupBox*>("placeMarks"), Qt::Key_Space);
        QTest::keyClick(pModal->findChild<QWidget*>("warnings"), Qt::Key_Space);
        press(wizard(pModal), QWizard::FinishButton);
    });
    QVERIFY(DialogExportKml(*first.session).getOptions(options));
    Wizards next(folder());
    KmlExportOptions stored;
    stored.read(next.property);
    for (const KmlExportOptions& got : {options, stored}) {
        QVERIFY(got.timeStamp == 5 && got.lineWidth == 4 && got.lineColor == "010203" && got.lineAlpha == 51);
        QVERIFY(got.track && !got.polygonOn && got.polygonColor == "0000ff" && got.polygonAlpha == 100);
        QVERIFY(!got.placeMarkOn && got.placeMarkInterval == 77 && got.errorMarkOn && got.showLimit && !got.showWarning);
    }
}

void TestDialogExport::sizeIsToldBefore()
{
    Wizards wizards(folder());
    ProfileBuilder profile;
    profile.unit("rpm", "rpm", 1).device("Engine").parameter("Speed", 500, "FLOAT", {{"unitMetric", "rpm"}, {"precision", "1"}});
    profile.parameter("Silent", 501, "FLOAT");
    QVERIFY(profile.load(wizards.profile));
    RecordFileBuilder records;
    for (int i = 0; i < 5000; ++i)
        records.addFloat(500, 100 + i * 0.1, static_cast<float>(1000 + i));
    records.fill(wizards.container.recordData());
    CsvExportOptions options{folder(), "a.csv"};
    for (const uint32_t resolution : {100u, 10u}) {
        for (const auto& span : {std::optional<TimeSpan>(), std::optional(TimeSpan{300, 400})}) {
            options.resolution = resolution;
            options.span = span;
            options.locale = resolution == 10 ? "de_DE" : "";
            QVERIFY(ExportCsv(wizards.profile, {}, QDateTime(QDate(2024, 12, 31), QTime(1, 0))).exportData(wizards.container.recordData(), options));
            const auto size = static_cast<double>(QFileInfo(folder() + "/a.csv").size());
            const ExportOutlook outlook(wizards.container.recordData(), wizards.profile, wizards.profile.selection(), options);
            QVERIFY2(std::abs(static_cast<double>(outlook.bytes()) - size) < size / 10, qPrintable(QString("%1, %2").arg(outlook.bytes()).arg(size)));
            Answer no(Answer::press("&No"));
            QVERIFY(outlook.mayWrite(static_cast<int64_t>(outlook.bytes()), nullptr) && no.text.isEmpty());
            QVERIFY(!outlook.mayWrite(static_cast<int64_t>(outlook.bytes()) - 1, nullptr) && no.text.contains("free in the folder"));
            QVERIFY(outlook.note(1).isEmpty());
        }
    }
    ProfileBuilder wide;
    wide.device("Engine");
    for (int i = 0; i < 4000; ++i)
        wide.parameter(QString("Speed %1").arg(i), 500, "FLOAT");
    QVERIFY(wide.load(wizards.profile));
    const QString note = ExportOutlook(wizards.container.recordData(), wizards.profile, wizards.profile.selection(), options).note(5'000'000'000);
    QVERIFY2(note.contains(" MB; 5.0 GB are free in the folder."), qPrintable(note));
}

void TestDialogExport::progressIsSeenAndCancelled()
{
    ExportProgress progress(nullptr);
    int shown = 0;
    Answer answer([&](QWidget* pModal) {
        QTRY_COMPARE((shown = pModal->findChild<QProgressBar*>()->value()), 42);
        QTest::mouseClick(pModal->findChild<QAbstractButton*>(), Qt::LeftButton);
    }, true);
    bool isDone = false;
    const auto work = [](Progress& report) {
        while (!report.isCancelled())
            report.setProgress(42);
    };
    progress.start("Writing ...", work, [&] { isDone = true; });
    QVERIFY(progress.isRunning() && !QApplication::activeModalWidget());
    QTRY_VERIFY(isDone);
    QVERIFY(progress.isCancelled() && !progress.isRunning() && !QApplication::activeModalWidget());
    QCOMPARE(shown, 42);
}

QTEST_MAIN(TestDialogExport)
#include "TestDialogExport.moc"
