#include "app/gui/Application.h"
#include "app/gui/DialogSplash.h"
#include "app/gui/ImageHandler.h"
#include "support/FileHelpers.h"
#include "support/Places.h"
#include "ui/main/Answer.h"
#include "ui/main/DesktopFixture.h"
#include "ui/main/DialogAbout.h"
#include "ui/main/DialogHelp.h"
#include "ui/main/DialogPreferences.h"
#include "ui/main/MainActions.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <QtTest>

using namespace ZARN;

/// The windows beside the main window: preferences, help, about, splash.
class TestPreferences : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ImageHandler::initialise(); }
    void language_data();
    void language();
    void fontSize();
    void wheelPassesOver();
    void memoryRunsOut();
    void profilePath();
    void mapTiles();
    void manual_data();
    void manual();
    void linksOfTheManual();
    void licences();
    void splash();
};

namespace {

Session sessionOf(DesktopFixture& desktop)
{
    return {desktop.console.console, desktop.property, desktop.profile, desktop.container, desktop.project};
}

} // namespace

void TestPreferences::language_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("restarts");
    QTest::newRow("now") << "Restart now" << true;
    QTest::newRow("later") << "Restart later: changes will not applied until next restart" << false;
}

void TestPreferences::language()
{
    QFETCH(QString, button);
    QFETCH(bool, restarts);
    const QTemporaryDir home;
    DesktopFixture desktop(home.path());
    DialogPreferences dialog(sessionOf(desktop), desktop.kernel);
    auto* pLanguage = dialog.findChild<QComboBox*>();
    QSignalSpy changed(&dialog, &DialogPreferences::signalLanguageChanged);
    Answer answer(Answer::press(button));
    Q_EMIT pLanguage->activated(pLanguage->findData("de"));
    QCOMPARE(answer.title, QString("ZARN Info"));
    QCOMPARE(answer.text, QString("Please restart ZARN to load new language !"));
    Answer unwanted(&Answer::close);
    Q_EMIT pLanguage->activated(pLanguage->findData("de"));
    QCOMPARE(changed.size(), 1);
    Q_EMIT pLanguage->activated(pLanguage->findData("us"));
    QCOMPARE(unwanted.title, QString()); // neither the same again nor the one that is spoken needs a start
    QVERIFY(desktop.restarted.isEmpty()); // not while this program still runs
    desktop.kernel.finishRestart();
    QVERIFY(fileContent(home.filePath("data/ZARN.ini").toStdString()).find("value=\"us\"") != std::string::npos);
    QCOMPARE(desktop.restarted, restarts ? QCoreApplication::arguments() : QStringList());
}

void TestPreferences::fontSize()
{
    const QTemporaryDir home;
    DesktopFixture desktop(home.path());
    putFile(home.filePath("a.css").toStdString(), "QLabel { margin: 1px; }");
    desktop.style.readStyle(home.filePath("a.css"));
    DialogPreferences dialog(sessionOf(desktop), desktop.kernel);
    dialog.show();
    const int before = dialog.findChild<QSpinBox*>("fontSize")->fontMetrics().height();
    dialog.findChild<QSpinBox*>("fontSize")->setValue(20);
    QCOMPARE(qApp->styleSheet(), QString("QLabel { margin: 1px; }\nQWidget {font-size: 20px;}"));
    QVERIFY(dialog.findChild<QSpinBox*>("fontSize")->fontMetrics().height() > before);
    dialog.findChild<QSpinBox*>("fontSize")->setValue(8);
    QCOMPARE(desktop.property.getInt("FontSize", 0), 8);
    const QString settings = home.filePath("data/ZARN.ini");
    QVERIFY(!QFileInfo::exists(settings)); // no file a step
    qApp->setStyleSheet("QSpinBox { min-height: 30px; }"); // labels stand at the height of their fields' text
    auto* pField = dialog.findChild<QSpinBox*>("fontSize");
    const QWidget* pLabel = qobject_cast<QFormLayout*>(pField->parentWidget()->layout())->labelForField(pField);
    QTRY_VERIFY(pField->height() >= 30 && pLabel->geometry().center().y() == pField->geometry().center().y());
    dialog.close();
    QVERIFY(fileContent(settings.toStdString()).find("id=\"FontSize\" value=\"8\"") != std::string::npos);
    for (const char* unusable : {"0", "abc", "7", "21", "-3"}) {
        desktop.property.setString("FontSize", unusable);
        dialog.fillDialog();
        QCOMPARE(dialog.findChild<QSpinBox*>("fontSize")->value(), 12);
        desktop.kernel.loadStyleFile(home.filePath("a.css"));
        QVERIFY(qApp->styleSheet().endsWith("{font-size: 12px;}"));
    }
    QCOMPARE(desktop.property.getString("FontSize", ""), std::string("-3")); // filling changes nothing
    qApp->setStyleSheet({});
}

void TestPreferences::wheelPassesOver()
{
    const QTemporaryDir home;
    DesktopFixture desktop(home.path());
    DialogMain& window = desktop.open();
    const auto value = [](const QWidget* pField) { return pField->property(qobject_cast<const QSpinBox*>(pField) ? "value" : "currentIndex"); };
    window.action(eActionPreferences)->trigger();
    const auto* pPreferences = window.findChild<DialogPreferences*>();
    const QList<QWidget*> fields{window.findChild<QComboBox*>("profiles"), window.findChild<QComboBox*>("units"),
                                 pPreferences->findChild<QComboBox*>(), pPreferences->findChild<QSpinBox*>("fontSize")};
    for (QWidget* pField : fields) {
        const QVariant before = value(pField);
        for (const int notch : {-120, 120}) {
            QWheelEvent wheel({5, 5}, pField->mapToGlobal(QPointF(5, 5)), {}, {0, notch}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(pField, &wheel);
            QCOMPARE(value(pField), before);
        }
    }
}

void TestPreferences::profilePath()
{
    const QTemporaryDir home;
    DesktopFixture desktop(home.path());
    DialogPreferences dialog(sessionOf(desktop), desktop.kernel);
    QSignalSpy changed(&dialog, &DialogPreferences::signalProfileFileChanged);
    const QString file = home.filePath("<b>other.xml");
    const std::pair<const char*, const char*> files[] = {
        {"", "no well-formed XML"}, {"<ZarnProject/>", "first element"}, {"<CanAerospaceProfile/>", ""}};
    for (const auto& [content, reason] : files) {
        putFile(file.toStdString(), content);
        Answer answer(Answer::close);
        dialog.slotProfilePath(file);
        QCOMPARE(answer.text.contains(reason) && answer.text.contains(file), *reason != '\0');
        QCOMPARE(changed.size(), *reason == '\0' ? 1 : 0);
        QCOMPARE(desktop.property.getString("Profile", "none"), *reason == '\0' ? file.toStdString() : "none");
    }
}

void TestPreferences::mapTiles()
{
    const QTemporaryDir home;
    DesktopFixture desktop(home.path());
    desktop.property.setString("TileServer", "https://tiles.example.org:8443");
    const QString former = home.filePath("tiles/server/3/1");
    QVERIFY(QDir().mkpath(former));
    putFile(former.toStdString() + "/2.tile", "kept");
    DialogPreferences dialog(sessionOf(desktop), desktop.kernel, nullptr, home.path());
    auto* pTiles = dialog.findChild<QCheckBox*>("tiles");
    QVERIFY(pTiles->isEnabled() && !pTiles->isChecked());
    QVERIFY(dialog.findChild<QLabel*>("tileServer")->text().contains("tiles.example.org:8443"));
    QSignalSpy changed(&dialog, &DialogPreferences::signalTilesChanged);
    pTiles->click();
    QCOMPARE(changed.size(), 1);
    const std::string answer = "https://tiles.example.org:8443/{z}/{x}/{y}.png";
    QCOMPARE(desktop.property.getString("MapTilesAllowed", ""), answer);
    QVERIFY(fileContent(home.filePath("data/ZARN.ini").toStdString()).find(answer) != std::string::npos);
    pTiles->click();
    QCOMPARE(desktop.property.getString("MapTilesAllowed", ""), std::string("no"));
    desktop.property.setString("MapTilesAllowed", answer); // answered in the map meanwhile
    dialog.show();
    QVERIFY(pTiles->isChecked());
    desktop.property.setString("TileServer", "https://other.example.org"); // agreeing to one server is no answer about another
    dialog.fillDialog();
    QVERIFY(!pTiles->isChecked());
    desktop.property.setString("TileServer", "ftp://x/{z}/{x}/{y}.png");
    dialog.fillDialog();
    QVERIFY(!pTiles->isEnabled());
    QCOMPARE(changed.size(), 2); // filling is no change of the user's
    auto* pAddress = dialog.findChild<QLineEdit*>("tileAddress");
    for (const char* pWrong : {"hello", "javascript:{z}{x}{y}", "https://a.example.org/{z}.png"}) {
        pAddress->setText(pWrong);
        Q_EMIT pAddress->editingFinished();
        QVERIFY2(dialog.findChild<QLabel*>("tileServer")->text().contains("\"Server\" was not taken over"), pWrong);
        QCOMPARE(desktop.property.getString("TileServer", ""), std::string("ftp://x/{z}/{x}/{y}.png"));
    }
    pAddress->setText(" tiles.example.net ");
    Q_EMIT pAddress->editingFinished();
    QCOMPARE(desktop.property.getString("TileServer", ""), std::string("tiles.example.net"));
    QVERIFY(pTiles->isEnabled() && dialog.findChild<QLabel*>("tileServer")->text().contains("tiles.example.net"));
    const auto isKept = [&home] { return fileContent(home.filePath("data/ZARN.ini").toStdString()).find("MapOffline") != std::string::npos; };
    dialog.findChild<QCheckBox*>("tilesOffline")->click();
    QVERIFY(desktop.property.getSwitch("MapOffline", false) && changed.size() == 4 && !isKept()); // no file a click
    auto* pSize = dialog.findChild<QSpinBox*>("tilesSize");
    pSize->setValue(16);
    pSize->stepUp();
    QVERIFY(changed.size() == 4 && desktop.property.getString("MapCacheSize", "none") == "none"); // no file a step
    Q_EMIT pSize->editingFinished();
    QVERIFY(changed.size() == 5 && desktop.property.getInt("MapCacheSize", 0) == 17 && !isKept());
    dialog.close();
    QVERIFY(isKept());
    dialog.findChild<QPushButton*>("tilesEmpty")->click();
    QVERIFY(!QFile::exists(former + "/2.tile"));
}

void TestPreferences::manual_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("heading");
    QTest::newRow("German") << "de" << "Die ersten fünf Minuten";
    QTest::newRow("English") << "us" << "The first five minutes";
    QTest::newRow("unknown") << "xx" << "The first five minutes";
}

void TestPreferences::manual()
{
    QFETCH(QString, locale);
    QFETCH(QString, heading);
    DialogHelp dialog(locale);
    auto* pBrowser = dialog.findChild<QTextBrowser*>();
    QVERIFY(pBrowser->toPlainText().contains(heading));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(dialog.screen()->availableGeometry().size().boundedTo(dialog.size()) == dialog.size());
    QCOMPARE(pBrowser->horizontalScrollBar()->maximum(), 0); // code is as small as the text, and no line is longer than the window
    qApp->setStyleSheet("QWidget {font-size: 18px;}");
    QTRY_COMPARE(pBrowser->horizontalScrollBar()->maximum(), 0);
    const QTextCursor code = pBrowser->document()->find("zarn-cli");
    QVERIFY(code.charFormat().fontFixedPitch());
    QVERIFY(!code.charFormat().hasProperty(QTextFormat::FontPointSize) && !code.charFormat().hasProperty(QTextFormat::FontPixelSize));
    qApp->setStyleSheet({});
    auto* pChapters = dialog.findChild<QListWidget*>("chapters");
    const auto found = pChapters->findItems(heading, Qt::MatchContains);
    QCOMPARE(found.size(), 1);
    pChapters->setCurrentItem(found.first());
    QCOMPARE(pBrowser->textCursor().block().text(), heading);
    auto* pSearch = dialog.findChild<QLineEdit*>("search");
    QTest::keyClicks(pSearch, "KmlTimeStamp");
    QTest::keyClick(pSearch, Qt::Key_Return);
    QCOMPARE(pBrowser->textCursor().selectedText(), QString("KmlTimeStamp"));
    QVERIFY(dialog.isVisible());
}

void TestPreferences::linksOfTheManual()
{
    DialogHelp dialog("de");
    auto* pBrowser = dialog.findChild<QTextBrowser*>();
    QList<QUrl> pages{pBrowser->source(), QUrl("qrc:/manual/en.md")};
    for (qsizetype i = 0; i < pages.size(); ++i) {
        pBrowser->setSource(pages[i]);
        QVERIFY2(pBrowser->toPlainText().size() > 1000, qPrintable(pages[i].toString()));
        static const QRegularExpression link("href=\"([^\"]+)\"");
        for (auto links = link.globalMatch(pBrowser->toHtml()); links.hasNext();) {
            const QUrl page = pages[i].resolved(QUrl(links.next().captured(1)));
            if (page.scheme() == "qrc" && !pages.contains(page))
                pages.append(page);
        }
    }
    QCOMPARE(pages.size(), 16); // manual and profiles in two languages, eight other formats, zarn-cli, stores and fleets, the demo card
}

void TestPreferences::licences()
{
    const DialogAbout dialog;
    auto* pNames = dialog.findChild<QListWidget*>();
    const auto* pTexts = dialog.findChild<QStackedWidget*>();
    QCOMPARE(pNames->count(), QDir(sourceDir() + "/resources/licences").entryList({"*.txt"}).size() + 1); // and the program's own
    for (int i = 0; i < pNames->count(); ++i) {
        pNames->setCurrentRow(i);
        const auto* pText = qobject_cast<QPlainTextEdit*>(pTexts->currentWidget());
        QVERIFY2(pText->toPlainText().size() > 500, qPrintable(pNames->item(i)->text()));
    }
}

void TestPreferences::splash()
{
    DialogSplash& splash = DialogSplash::instance();
    QCOMPARE(splash.size(), QSize(536, 403));
    for (int i = 1; i <= 16; ++i)
        splash.addEntry(QString("line %1").arg(i));
    QCOMPARE(splash.entries().size(), 15);
    QCOMPARE(splash.entries().first(), QString("line 2"));
    const QImage full = splash.grab().toImage();
    int blue = 0;
    for (int y = 20; y < 260; ++y) {
        for (int x = 5; x < 60; ++x)
            blue += full.pixelColor(x, y).blue() - full.pixelColor(x, y).red() > 120;
    }
    QVERIFY2(blue > 50, "the lines are written at the left edge");
    QTest::mouseClick(&splash, Qt::LeftButton);
    QVERIFY(splash.isVisible());
    QSignalSpy gone(&splash, &QObject::destroyed);
    QWidget window;
    window.show();
    splash.finish(&window);
    auto* pTimer = splash.findChild<QTimer*>();
    QVERIFY(splash.isVisible() && pTimer->remainingTime() > 2000);
    pTimer->start(0);
    QTRY_COMPARE(gone.size(), 1);
    DialogSplash& second = DialogSplash::instance();
    QSignalSpy left(&second, &QObject::destroyed);
    second.finish(&window);
    window.close(); // the picture stays in nobody's way
    QTRY_COMPARE_WITH_TIMEOUT(left.size(), 1, 1000);
}

void TestPreferences::memoryRunsOut()
{
    QTimer::singleShot(0, qApp, [] { throw std::bad_alloc(); });
    Answer answer(Answer::close);
    QCOMPARE(QCoreApplication::exec(), 1);
    QVERIFY(answer.text.contains("memory"));
}

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    Application application(argc, argv);
    TestPreferences test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestPreferences.moc"
