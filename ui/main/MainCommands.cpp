#include "ui/main/MainCommands.h"

#include "ui/main/MainActions.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>

namespace ZARN {

namespace {

QString menuTitle(const char* text)
{
    return QCoreApplication::translate("ZARN::DialogMain", text);
}

} // namespace

MainCommands::MainCommands(QObject* pParent) : QObject(pParent), mpGroup(new QActionGroup(this))
{
    mpGroup->setExclusionPolicy(QActionGroup::ExclusionPolicy::None);
    for (const MainAction& entry : MainAction::all()) {
        mActions[entry.id] = entry.create(this);
        mpGroup->addAction(mActions[entry.id]);
    }
}

QAction* MainCommands::action(int id) const
{
    const auto found = mActions.find(id);
    return found == mActions.end() ? nullptr : found->second;
}

void MainCommands::fillMenus(QMenuBar& menuBar) const
{
    const auto fill = [this](QMenu* pMenu, std::initializer_list<int> ids) {
        for (const int id : ids)
            pMenu->addAction(action(id));
    };
    QMenu* pFile = menuBar.addMenu(menuTitle(QT_TRANSLATE_NOOP("ZARN::DialogMain", "&File")));
    fill(pFile, {eActionOpenFolder});
    pFile->addSeparator();
    fill(pFile, {eActionQuit});
    fill(menuBar.addMenu(menuTitle(QT_TRANSLATE_NOOP("ZARN::DialogMain", "&Extras"))),
         {eActionPreferences, eActionExportKml, eActionExportCsv, eActionLogbook, eActionNote, eActionXy, eActionLive});
    QMenu* pHelp = menuBar.addMenu(menuTitle(QT_TRANSLATE_NOOP("ZARN::DialogMain", "&Help")));
    fill(pHelp, {eActionPreferences, eActionAbout, eActionProfile});
    connect(pHelp, &QMenu::aboutToShow, this, &MainCommands::signalHelpMenuOpening);
}

void MainCommands::setEnabled(std::initializer_list<int> ids, bool isEnabled) const
{
    for (const int id : ids)
        action(id)->setEnabled(isEnabled);
}

void MainCommands::handle(int id, Run run)
{
    mRuns[id] = std::move(run);
}

void MainCommands::run(QAction& action) const
{
    if (const auto found = mRuns.find(action.data().toInt()); found != mRuns.end())
        found->second(action);
}

} // namespace ZARN
