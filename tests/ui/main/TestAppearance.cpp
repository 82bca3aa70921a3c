#include "app/gui/ImageHandler.h"
#include "support/FileHelpers.h"
#include "support/Places.h"
#include "ui/canvas/ColourContrast.h"
#include "ui/canvas/Palette.h"
#include "ui/graph/WidgetGraphES.h"
#include "ui/main/DesktopFixture.h"
#include "ui/main/DialogPreferences.h"
#include "ui/main/Notices.h"
#include "ui/main/StyleWatch.h"

#include "app/gui/DesktopScheme.h"

#include <QComboBox>
#include <QDBusConnection>
#include <QLabel>
#include <QMainWindow>
#include <QRegularExpression>
#include <QtTest>

#include <unistd.h>

using namespace ZARN;

/// A desktop that says which colours its user prefers.
class Desktop : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    uint scheme = 0;

public Q_SLOTS:
    // NOLINTNEXTLINE(readability-identifier-naming): of the interface
    QDBusVariant Read(const QString& /*group*/, const QString& /*key*/) { return QDBusVariant(QVariant::fromValue(QDBusVariant(scheme))); }

Q_SIGNALS:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
};

/// Palettes: what is read can be read, a switch reaches all, damage leaves what comes with the program.
class TestAppearance : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ImageHandler::initialise(); }
    void cleanup() { qApp->setStyleSheet({}); }
    void contrast_data();
    void contrast();
    void rulesNameTheirUses();
    void damagedColours_data();
    void damagedColours();
    void unknownVariables();
    void switched();
    void desktop();
};

void TestAppearance::contrast_data()
{
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<double>("least");
    const ColourTable& table = ColourTable::builtIn();
    for (const ColourTable::Use& use : table.uses()) {
        for (const ColourTable::EMedium medium : {ColourTable::eLight, ColourTable::eDark, ColourTable::ePaper}) {
            const QColor colour = table.colour(use.colour, medium), ground = table.colour(use.ground, medium);
            if (colour.isValid() && ground.isValid())
                QTest::addRow("%s on %s %d", qPrintable(use.colour), qPrintable(use.ground), medium) << colour << ground << use.least;
        }
    }
}

void TestAppearance::contrast()
{
    QFETCH(QColor, colour);
    QFETCH(QColor, ground);
    QFETCH(double, least);
    QVERIFY2(contrastRatio(colour, ground) >= least, qPrintable(QString::number(contrastRatio(colour, ground))));
}

/// A text and its ground that a rule of the style sheet brings together are judged together.
void TestAppearance::rulesNameTheirUses()
{
    static const QRegularExpression rule("\\{([^}]*)\\}"), text("(?<![-\\w])color: \\$\\((\\w+)\\)"),
        ground("(?<!-)background-color: \\$\\((\\w+)\\)");
    const QString sheet = QString::fromStdString(fileContent(sourceDir().toStdString() + "/resources/styles/style.ZARN.css"));
    int found = 0;
    for (auto rules = rule.globalMatch(sheet); rules.hasNext();) {
        const QString body = rules.next().captured(1);
        const QString colour = text.match(body).captured(1), below = ground.match(body).captured(1);
        if (colour.isEmpty() || below.isEmpty() || colour == "disabled")
            continue;
        ++found;
        const auto isIt = [&](const ColourTable::Use& use) { return use.colour == colour && use.ground == below && use.least == 4.5; };
        QVERIFY2(std::ranges::any_of(ColourTable::builtIn().uses(), isIt), qPrintable(colour + " on " + below));
    }
    QVERIFY(found > 5);
    for (const auto& [name, value] : ColourTable::builtIn().variables(ColourTable::eLight)) { // of map and course nothing but these decorates
        const auto isIn = [&name = name](const ColourTable::Use& use) { return use.colour == name || use.ground == name; };
        const bool isDrawn = (name.startsWith("map") && name != "mapGrid" && name != "mapFrame") || name.startsWith("course");
        QVERIFY2(!isDrawn || std::ranges::any_of(ColourTable::builtIn().uses(), isIn), qPrintable(name));
    }
    const std::string arrow = fileContent(sourceDir().toStdString() + "/resources/icons/chevron-down.svg");
    for (const ColourTable::EMedium medium : {ColourTable::eLight, ColourTable::eDark}) // the one picture serves both
        QVERIFY(arrow.find(ColourTable::builtIn().colour("arrow", medium).name().toStdString()) != std::string::npos);
}

void TestAppearance::damagedColours_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("told"); // empty: it is in force
    QTest::newRow("own colours") << QByteArray("# mine\n\naccent #a02060 #b84888\n") << "";
    QTest::newRow("no such name") << QByteArray("text #000000\nGround #ffffff") << "Line 2: there is no colour \"Ground\"";
    QTest::newRow("no colour") << QByteArray("text #00000g #ffffff") << "\"#00000g\" is no colour";
    QTest::newRow("half a line") << QByteArray("text") << "\"text\" has no colour";
    QTest::newRow("unreadable") << QByteArray("text #dddddd") << "\"text\" cannot be read on \"ground\"";
    QTest::newRow("binary") << QByteArray("\0\xff\n\xfe\x80", 5) << "Line 1: ";
    QTest::newRow("huge") << QByteArray(100000, ' ') << "cannot be read";
}

void TestAppearance::damagedColours()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, told);
    const QTemporaryDir home;
    DesktopFixture desktop(home.path());
    putFile(home.filePath("palette.txt").toStdString(), text.toStdString());
    desktop.kernel.readColours(home.filePath("palette.txt"));
    desktop.kernel.loadStyleFile(Kernel::kBuiltInStyle);
    const QString problem = desktop.kernel.styleProblem();
    QVERIFY2(told.isEmpty() ? problem.isEmpty() : problem.contains(told) && problem.startsWith(home.path()), qPrintable(problem));
    QCOMPARE(qApp->palette().color(QPalette::Highlight).name(), told.isEmpty() ? "#a02060" : "#12588f");
    QCOMPARE(qApp->styleSheet().contains("#a02060"), told.isEmpty());
}

void TestAppearance::unknownVariables()
{
    const QTemporaryDir home;
    const std::string file = home.path().toStdString() + "/mine.css";
    putFile(file, "Variables { mine: 3; }\nQLabel { margin: $(mine)px; color: $(accent); padding: $(nosuch) $(other); }");
    DesktopFixture desktop(home.path(), {"-s", file});
    desktop.kernel.loadStyleFile(QString::fromStdString(file));
    QVERIFY(qApp->styleSheet().contains("QMenuBar")); // the toolkit would have refused the file as a whole
    DialogMain& window = desktop.open();
    const auto isTold = [](const QLabel* pLabel) { return pLabel->toolTip().contains("nosuch, other"); };
    QVERIFY(std::ranges::any_of(window.findChildren<QLabel*>(), isTold));
    putFile(file, "Variables { mine: 3; }\nQLabel { margin: $(mine)px; color: $(accent); }");
    desktop.kernel.loadStyleFile(QString::fromStdString(file));
    QVERIFY(qApp->styleSheet().contains("margin: 3px; color: #12588f") && desktop.kernel.styleProblem().isEmpty());
    QVERIFY(QFile::remove(QString::fromStdString(file)));
    const auto says = [](const QLabel* pLabel) { return pLabel->text().contains("mine.css: It cannot be read"); };
    QTRY_VERIFY(std::ranges::any_of(window.findChildren<QLabel*>(), says));
}

void TestAppearance::switched()
{
    const QTemporaryDir home;
    DesktopFixture desktop(home.path());
    bool isSystemDark = false;
    Kernel kernel(desktop.property, desktop.style, {}, Appearance([&isSystemDark] { return isSystemDark; }));
    kernel.setApplication(qApp);
    kernel.loadStyleFile(Kernel::kBuiltInStyle);
    WidgetGraphES graph, own;
    graph.model().settings() = own.model().settings() = GraphData();
    own.setBackColor(0.0F, 0.0F, 1.0F);
    QLabel label("<a href=\"x\">link</a>");
    DialogPreferences dialog({desktop.console.console, desktop.property, desktop.profile, desktop.container, desktop.project}, kernel);
    for (QWidget* pWidget : std::initializer_list<QWidget*>{&graph, &own, &label, &dialog})
        pWidget->show();
    auto* pPalette = dialog.findChild<QComboBox*>("palette");
    const auto choose = [pPalette](int index) {
        pPalette->setCurrentIndex(index);
        Q_EMIT pPalette->activated(index);
    };
    const auto isDark = [&] {
        const bool is = label.palette().color(QPalette::WindowText).lightness() > 128;
        const QImage icon = ImageHandler::icon("find").pixmap(64, 64).toImage();
        const bool isLit = icon.convertToFormat(QImage::Format_ARGB32).pixelColor(11, 29).lightness() > 128 || !is;
        const bool isGraph = graph.model().colours().labelBackground == Palette::screen().graph.labelGround;
        return is && isLit && isGraph && graph.model().colours().labelBackground.lightness() < 128;
    };
    QVERIFY(!isDark());
    choose(1);
    QVERIFY(isDark());
    QCOMPARE(own.model().colours().background, QColor(Qt::blue)); // the user's own
    QVERIFY(fileContent(home.filePath("data/ZARN.ini").toStdString()).find("id=\"Palette\" value=\"1\"") != std::string::npos);
    choose(0);
    QVERIFY(!isDark());
    isSystemDark = true;
    choose(2);
    QVERIFY(isDark() && kernel.followsSystem());
    QMainWindow window;
    Notices notices(&window);
    const StyleWatch watch(desktop.console.console, kernel, notices, {}, nullptr);
    isSystemDark = false;
    QEvent change(QEvent::ThemeChange);
    QCoreApplication::sendEvent(&window, &change);
    QTRY_VERIFY(!isDark());
}

void TestAppearance::desktop()
{
    QCOMPARE(DesktopScheme::isDark(), std::optional<bool>());
    Desktop desktop;
    QDBusConnection bus = QDBusConnection::sessionBus();
    QVERIFY(bus.registerObject("/org/freedesktop/portal/desktop", &desktop, QDBusConnection::ExportAllContents));
    QVERIFY(bus.registerService("org.freedesktop.portal.Desktop"));
    const QTemporaryDir home;
    DesktopFixture fixture(home.path());
    fixture.property.setString("Palette", "2");
    fixture.kernel.applyPalette();
    QMainWindow window;
    Notices notices(&window);
    const StyleWatch watch(fixture.console.console, fixture.kernel, notices, {}, nullptr);
    for (const uint scheme : {1U, 2U, 1U, 0U}) { // dark, light, dark, no preference
        desktop.scheme = scheme;
        Q_EMIT desktop.SettingChanged("org.freedesktop.appearance", "color-scheme", QDBusVariant(scheme));
        QTRY_COMPARE(qApp->palette().color(QPalette::Window).lightness() < 128, scheme == 1);
    }
}

/// On a session bus of its own, whatever the desktop says.
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("ZARN_TEST_BUS")) {
        qputenv("ZARN_TEST_BUS", "1");
        std::vector<char*> words{const_cast<char*>("dbus-run-session"), const_cast<char*>("--")};
        words.insert(words.end(), argv, argv + argc);
        words.push_back(nullptr);
        execvp(words[0], words.data());
        return 1;
    }
    QApplication application(argc, argv);
    TestAppearance test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestAppearance.moc"
