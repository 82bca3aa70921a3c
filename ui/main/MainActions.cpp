#include "ui/main/MainActions.h"

#include "app/gui/ImageHandler.h"

#include <QAction>
#include <QCoreApplication>

namespace ZARN {

namespace {

constexpr const char* kContext = "ZARN::DialogMain";

QString translated(const char* text)
{
    return QCoreApplication::translate(kContext, text);
}

} // namespace

const std::vector<MainAction>& MainAction::all()
{
    // clang-format off
    static const std::vector<MainAction> actions = {
        {eActionNewProject, QT_TRANSLATE_NOOP("ZARN::DialogMain", "&New Project"), "Ctrl+N",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Create new Project"), "", "project-new"},
        {eActionOpenProject, QT_TRANSLATE_NOOP("ZARN::DialogMain", "&Open Project"), "Ctrl+O",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Open Project"),
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Open Project File"), "project-open"},
        {eActionOpenFolder, QT_TRANSLATE_NOOP("ZARN::DialogMain", "&Open Data Folder"), "Ctrl+C",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Open Data Folder"), "", "open-folder"},
        {eActionSaveProject, QT_TRANSLATE_NOOP("ZARN::DialogMain", "&Save Project"), "Ctrl+S",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Save Project"),
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Save Project File"), "project-save"},
        {eActionSaveProjectAs, QT_TRANSLATE_NOOP("ZARN::DialogMain", "&Save Project as"), "",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Save Project as"),
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Save Project File as"), "project-save-as"},
        {eActionQuit, QT_TRANSLATE_NOOP("ZARN::DialogMain", "&Quit"), "Ctrl+Q",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Quit Application"), "", "quit"},
        {eActionAbout, QT_TRANSLATE_NOOP("ZARN::DialogMain", "About"), "",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Show License Information"), "", "about"},
        {eActionProfile, QT_TRANSLATE_NOOP("ZARN::DialogMain", "Profile"), "",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Show Profile Information"), "", "profile"},
        {eActionHelp, QT_TRANSLATE_NOOP("ZARN::DialogMain", "Help"), "F1",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Help Window"), "", "help"},
        {eActionPreferences, QT_TRANSLATE_NOOP("ZARN::DialogMain", "Preferences"), "",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Open Preferences Dialog"), "", "preferences"},
        {eActionExportKml, QT_TRANSLATE_NOOP("ZARN::DialogMain", "Export Google KML File"), "",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Export Google Earth KML File"), "", "export-kml"},
        {eActionExportCsv, QT_TRANSLATE_NOOP("ZARN::DialogMain", "Export CSV File"), "",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Export CSV File"), "", "export-csv"},
        {eActionExportGpx, QT_TRANSLATE_NOOP("ZARN::DialogMain", "Export GPX File"), "",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Export Flight Path as GPX File"), "", "flight"},
        {eActionReport, QT_TRANSLATE_NOOP("ZARN::DialogMain", "Flight Report"), "",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Write Flight Report as PDF or HTML File"), "", "about"},
        {eActionOverview, QT_TRANSLATE_NOOP("ZARN::DialogMain", "Overview"), "Ctrl+E",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Was the engine all right? The whole card at a glance"), "", "verdict"},
        {eActionNextIncident, QT_TRANSLATE_NOOP("ZARN::DialogMain", "Next Incident"), "N; Ctrl+Down",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Go to the next incident of what is loaded"), "", "incident-next"},
        {eActionPreviousIncident, QT_TRANSLATE_NOOP("ZARN::DialogMain", "Previous Incident"), "Shift+N; Ctrl+Up",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Go to the previous incident of what is loaded"), "", "incident-previous"},
        {eActionFind, QT_TRANSLATE_NOOP("ZARN::DialogMain", "Find"), "Ctrl+F",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Where was a value above or below another, and for how long"), "", "find"},
        {eActionLogbook, QT_TRANSLATE_NOOP("ZARN::DialogMain", "Logbook"), "Ctrl+L",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Flights, engine hours, trends and services of the cards that were opened"), "", "flight"},
        {eActionNote, QT_TRANSLATE_NOOP("ZARN::DialogMain", "Note"), "M; Ctrl+M",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Write a note about the moment that is shown"), "", "project-save-as"},
        {eActionXy, QT_TRANSLATE_NOOP("ZARN::DialogMain", "X against Y"), "Ctrl+Shift+X",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "One parameter over another, with their limits"), "", "xy"},
        {eActionLive, QT_TRANSLATE_NOOP("ZARN::DialogMain", "Live ..."), "Ctrl+Shift+L",
         QT_TRANSLATE_NOOP("ZARN::DialogMain", "Watch and record what a CAN interface receives"), "", "replay-start"},
    };
    // clang-format on
    return actions;
}

QString MainAction::title() const
{
    return translated(text).remove('&');
}

QAction* MainAction::create(QObject* pParent) const
{
    auto* pAction = new QAction(ImageHandler::icon(icon), translated(text), pParent);
    pAction->setData(id);
    pAction->setShortcuts(QKeySequence::listFromString(shortcut)); // the second for where letters are typed
    pAction->setStatusTip(translated(statusTip));
    if (*iconText)
        pAction->setIconText(translated(iconText));
    // The toolkit moves actions by words in their texts on some systems; these stay where the menus put them.
    pAction->setMenuRole(QAction::NoRole);
    return pAction;
}

} // namespace ZARN
