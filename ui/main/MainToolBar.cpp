#include "ui/main/MainToolBar.h"

#include "app/gui/TextSize.h"
#include "app/gui/WheelGuard.h"
#include "ui/main/MainActions.h"

#include <QComboBox>
#include <QEvent>
#include <QMenu>
#include <QToolButton>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kProfileWidth = 200;
constexpr int kIcon = 24;
constexpr int kBesideUnit = 52; // pixels of a selector beside its text

} // namespace

MainToolBar::MainToolBar(const std::function<QAction*(int id)>& action) : QToolBar(tr("Main Toolbar")), mpFolders(new QMenu(this))
{
    setObjectName("MainToolBar");
    setMovable(false);
    addFolders(action(eActionOpenFolder));
    addSeparator();
    for (const int id : {eActionOverview, eActionPreviousIncident, eActionNextIncident, eActionFind})
        addAction(action(id));
    addSeparator();
    addMore(action(eActionExportKml), {action(eActionExportGpx), action(eActionReport)});
    addAction(action(eActionExportCsv));
    addSeparator();
    addProfiles();
    addSeparator();
    addUnits();
}

void MainToolBar::addFolders(QAction* pOpen)
{
    addAction(pOpen);
    auto* pButton = qobject_cast<QToolButton*>(widgetForAction(pOpen));
    pButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon); // the one to begin with; all others are told by their tool tips
    pButton->setMenu(mpFolders);
    pButton->setPopupMode(QToolButton::MenuButtonPopup);
}

/// Behind the arrow of the one button: others of its kind.
void MainToolBar::addMore(QAction* pFirst, const QList<QAction*>& others)
{
    addAction(pFirst);
    auto* pButton = qobject_cast<QToolButton*>(widgetForAction(pFirst));
    auto* pMenu = new QMenu(pButton);
    pMenu->addActions(others);
    pButton->setMenu(pMenu);
    pButton->setPopupMode(QToolButton::MenuButtonPopup);
}

QComboBox* MainToolBar::addSelector(const char* name, int leastWidth, const QString& toolTip, const QString& accessibleName)
{
    auto* pSelector = new QComboBox;
    pSelector->setObjectName(name);
    pSelector->setMinimumWidth(leastWidth);
    pSelector->setToolTip(toolTip);
    pSelector->setAccessibleName(accessibleName);
    WheelGuard::install(*pSelector);
    addWidget(pSelector);
    return pSelector;
}

void MainToolBar::addProfiles()
{
    mpProfiles = addSelector("profiles", kProfileWidth, tr("Profile: what the recorded bytes mean"), tr("Profile"));
    connect(mpProfiles, &QComboBox::textActivated, this, &MainToolBar::signalProfile);
}

void MainToolBar::addUnits()
{
    mpUnits = addSelector("units", 0, tr("Units of all displays"), tr("Units"));
    mpUnits->addItem(tr("Metric"), "0");
    mpUnits->addItem(tr("Imperial"), "1");
    connect(mpUnits, &QComboBox::activated, this, &MainToolBar::signalUnit);
}

/// Under a style sheet a selector does not know how wide it must be.
void MainToolBar::giveRoom()
{
    int text = 0;
    for (int i = 0; i < mpUnits->count(); ++i)
        text = std::max(text, mpUnits->fontMetrics().horizontalAdvance(mpUnits->itemText(i)));
    mpUnits->setMinimumWidth(text + kBesideUnit);
    sizeIcons();
}

/// As large as the text asks for, where that leaves all buttons their place.
void MainToolBar::sizeIcons()
{
    const int wanted = grownWithText(*this, kIcon);
    const int buttons = static_cast<int>(actions().size()); // more than have an icon
    const int spare = width() - sizeHint().width() + buttons * (iconSize().width() - kIcon);
    const int size = kIcon + std::clamp(spare / buttons, 0, wanted - kIcon);
    if (iconSize().width() != size)
        setIconSize(QSize(size, size));
}

void MainToolBar::resizeEvent(QResizeEvent* pEvent)
{
    QToolBar::resizeEvent(pEvent);
    sizeIcons();
}

void MainToolBar::changeEvent(QEvent* pEvent)
{
    QToolBar::changeEvent(pEvent);
    if (mpUnits && (pEvent->type() == QEvent::FontChange || pEvent->type() == QEvent::StyleChange))
        QMetaObject::invokeMethod(this, &MainToolBar::giveRoom, Qt::QueuedConnection); // when it has its font, too
}

} // namespace ZARN
