#include "app/gui/ImageHandler.h"
#include "export/ui/DialogExportCsv.h"
#include "export/ui/DialogExportKml.h"
#include "sim/DemoCard.h"
#include "ui/data/DataTabBar.h"
#include "ui/data/DataViewList.h"
#include "ui/graph/DialogGraphSetup.h"
#include "ui/graph/WidgetGraphES.h"
#include "ui/live/DialogLive.h"
#include "ui/main/DesktopFixture.h"
#include "ui/map/WidgetMap.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QButtonGroup>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QRegularExpression>
#include <QTabBar>
#include <QWizard>
#include <QtTest>

using namespace ZARN;

/// All windows for users who do not see them, or have no mouse: every control tells its name, and the keyboard comes to each.
class TestAccessibility : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyWindow();
};

namespace {

bool isControl(const QWidget* pWidget)
{
    if (pWidget->objectName().startsWith("qt_") || qobject_cast<const QScrollBar*>(pWidget) || pWidget->inherits("QSplitterHandle"))
        return false; // the toolkit's own
    return qobject_cast<const QAbstractButton*>(pWidget) || qobject_cast<const QLineEdit*>(pWidget) ||
           qobject_cast<const QComboBox*>(pWidget) || qobject_cast<const QAbstractSpinBox*>(pWidget) ||
           qobject_cast<const QAbstractItemView*>(pWidget) || (pWidget->focusPolicy() & Qt::TabFocus);
}

/// The controls of a window; what is part of another control counts as that one.
QList<QWidget*> controls(const QWidget& window)
{
    QList<QWidget*> list;
    for (QWidget* pWidget : window.findChildren<QWidget*>()) {
        bool isPart = pWidget->window() != &window;
        for (const QWidget* pAbove = pWidget->parentWidget(); pAbove && pAbove != &window; pAbove = pAbove->parentWidget())
            isPart = isPart || (isControl(pAbove) && !qobject_cast<const QScrollArea*>(pAbove) && !pAbove->inherits("ZARN::WidgetMap"));
        if (!isPart && isControl(pWidget))
            list << pWidget;
    }
    return list;
}

QString placeOf(const QWidget* pWidget)
{
    return QString("%1 %2 in %3 (%4)")
        .arg(pWidget->metaObject()->className(), pWidget->objectName(), pWidget->parentWidget()->metaObject()->className(),
             pWidget->toolTip());
}

QStringList unnamed(const QWidget& window)
{
    QStringList list;
    for (QWidget* pWidget : controls(window)) {
        if (qobject_cast<QTabBar*>(pWidget) || qobject_cast<QScrollArea*>(pWidget))
            continue; // named by what they hold
        if (QAccessible::queryAccessibleInterface(pWidget)->text(QAccessible::Name).isEmpty())
            list << "no name: " + placeOf(pWidget);
    }
    return list;
}

/// Of buttons of which one is chosen, the arrow keys lead on from it.
bool isReached(const QWidget* pWidget, const QSet<const QWidget*>& seen)
{
    const auto* pButton = qobject_cast<const QAbstractButton*>(pWidget);
    if (pButton && pButton->group() && pButton->group()->exclusive()) {
        const QList<QAbstractButton*> mates = pButton->group()->buttons();
        return std::ranges::any_of(mates, [&](const QWidget* pMate) { return seen.contains(pMate); });
    }
    return std::ranges::any_of(seen, [&](const QWidget* pSeen) { return pSeen == pWidget || pWidget->isAncestorOf(pSeen); });
}

QStringList unreached(QWidget& window)
{
    window.activateWindow();
    if (!QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; })) // a dialog shares its parent's activity
        return {"not active: " + window.windowTitle()};
    QSet<const QWidget*> seen;
    for (int i = 0; i < 200 && QApplication::focusWidget(); ++i) {
        seen << QApplication::focusWidget();
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier); // at once: a window painted for each step takes minutes
        QApplication::sendEvent(QApplication::focusWidget(), &tab);
    }
    QStringList list;
    for (const QWidget* pWidget : controls(window)) {
        if (pWidget->isVisible() && pWidget->isEnabled() && !isReached(pWidget, seen))
            list << "no key leads to: " + placeOf(pWidget);
    }
    return list;
}

QStringList wizard(QWizard& window, const QString& folder)
{
    QStringList list;
    window.findChild<QLineEdit*>("directory")->setText(folder);
    window.findChild<QLineEdit*>("fileName")->setText("out");
    window.show();
    for (const int page : window.pageIds()) {
        if (window.currentId() != page)
            list << QString("page %1 is not shown").arg(page);
        list << unnamed(window) << unreached(window);
        window.next();
    }
    window.hide();
    return list;
}

} // namespace

void TestAccessibility::everyWindow()
{
    ImageHandler::initialise();
    const QTemporaryDir home;
    std::string error;
    QVERIFY(DemoCard().write(home.path().toStdString() + "/card", DemoCardOptions{}, error));
    DesktopFixture desktop(home.path(), {home.path().toStdString() + "/card"});
    DialogMain& window = desktop.open();
    started(window);
    QStringList faults = unreached(window);
    window.slotLoadCycle(2, -1);
    settled(window);
    faults << unnamed(window);
    auto* pTabs = window.findChild<DataTabBar*>();
    for (int tab = 0; tab < pTabs->count(); ++tab) {
        pTabs->setCurrentIndex(tab);
        faults << unreached(window);
    }
    const auto described = [](QWidget* pWidget) { return QAccessible::queryAccessibleInterface(pWidget)->text(QAccessible::Description); };
    pTabs->setCurrentIndex(eViewGraph);
    auto* pGraph = window.findChild<WidgetGraphES*>(); // what happened is found beside
    const QRegularExpression graph("From -?00:..:.. to .*Cursor at .*Incidents: ");
    QTRY_VERIFY_WITH_TIMEOUT(described(pGraph).contains(graph), 30000);
    const QString map = described(window.findChild<WidgetMap*>());
    QVERIFY2(map.contains(QRegularExpression("Flight path from 00:.*Aircraft at 48\\.\\d{4}° N, 11\\.")), qPrintable(map));
    const Session session{desktop.console.console, desktop.property, desktop.profile, desktop.container, desktop.project};
    DialogExportCsv csv(session, &window);
    DialogExportKml kml(session, &window);
    faults << wizard(csv, home.path()) << wizard(kml, home.path());
    GraphData settings;
    DialogGraphSetup setup(&window, settings);
    DialogLive live(session, &window);
    live.ask(false);
    for (QDialog* pDialog : window.findChildren<QDialog*>()) {
        if (qobject_cast<QWizard*>(pDialog))
            continue;
        pDialog->show();
        faults << unnamed(*pDialog) << unreached(*pDialog);
        pDialog->hide();
    }
    faults.removeDuplicates();
    for (const QString& fault : faults)
        qWarning("%s", qPrintable(fault));
    QVERIFY(faults.isEmpty());
}

QTEST_MAIN(TestAccessibility)
#include "TestAccessibility.moc"
