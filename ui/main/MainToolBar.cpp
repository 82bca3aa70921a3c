#include "ui/main/MainToolBar.h"

#include "app/gui/WheelGuard.h"
#include "ui/main/MainActions.h"

#include <QComboBox>
#include <QMenu>
#include <QToolButton>

namespace ZARN {

namespace {

constexpr int kSelectorWidth = 200;

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

QComboBox* MainToolBar::addSelector(const char* name, const QString& toolTip, const QString& accessibleName)
{
    auto* pSelector = new QComboBox;
    pSelector->setObjectName(name);
    pSelector->setMinimumWidth(kSelectorWidth);
    pSelector->setToolTip(toolTip);
    pSelector->setAccessibleName(accessibleName);
    WheelGuard::install(*pSelector);
    addWidget(pSelector);
    return pSelector;
}

void MainToolBar::addProfiles()
{
    mpProfiles = addSelector("profiles", tr("Profile: what the recorded bytes mean"), tr("Profile"));
    connect(mpProfiles, &QComboBox::textActivated, this, &MainToolBar::signalProfile);
}

void MainToolBar::addUnits()
{
    mpUnits = addSelector("units", tr("Units of all displays"), tr("Units"));
    mpUnits->addItem(tr("Metric"), "0");
    mpUnits->addItem(tr("Imperial"), "1");
    connect(mpUnits, &QComboBox::activated, this, &MainToolBar::signalUnit);
}

} // namespace ZARN
