#pragma once

#include <QString>

#include <vector>

class QAction;
class QObject;

namespace ZARN {

/// The numbers of the main window's commands; an action carries its own as its data.
enum EMainAction : int {
    eActionNewProject = 0,
    eActionOpenProject = 1,
    eActionOpenFolder = 2,
    eActionSaveProject = 4,
    eActionSaveProjectAs = 5,
    eActionQuit = 6,
    eActionAbout = 8,
    eActionProfile = 9,
    eActionHelp = 10,
    eActionPreferences = 15,
    eActionExportKml = 17,
    eActionExportCsv = 18,
    eActionExportGpx = 19,
    eActionReport = 20,
    eActionOverview = 21,
    eActionNextIncident = 22,
    eActionPreviousIncident = 23,
    eActionFind = 24,
    eActionLogbook = 25,
    eActionNote = 26,
    eActionXy = 27,
    eActionLive = 28
};

/// One command of the main window: texts to be translated, the shortcut, the name of its icon.
struct MainAction {
    int id;
    const char* text;
    const char* shortcut; ///< or several, with "; " between them
    const char* statusTip;
    const char* iconText; ///< empty for the text itself
    const char* icon;

    /// All commands in the order of their numbers.
    static const std::vector<MainAction>& all();
    /// The text in the language of the program, without the mark of its key.
    [[nodiscard]] QString title() const;
    /// Makes the action in the language of the program.
    [[nodiscard]] QAction* create(QObject* pParent) const;
};

} // namespace ZARN
