#pragma once

#include "project/Session.h"

#include <QObject>
#include <QString>

class QWidget;

namespace ZARN {

/// New, open and save for the project, and the question before unsaved changes are lost. Owned by the main window.
class ProjectController : public QObject {
    Q_OBJECT

public:
    ProjectController(const Session& session, QWidget* pWindow);

    void newProject();
    /// Asks for a project file and reads it.
    void openProject();
    /// Reads the project file of the settings, without asking anything.
    void restoreProject();
    /// @param askName ask for the file also when the project has one. @return false when the user gave up, or when the file could not be
    /// written, after a message.
    bool saveProject(bool askName);
    /// Saves changes without asking whether. @return false when the user wants to stay: no file name was given, or the save failed.
    bool saveAtQuit();
    /// @return false when the user wants to stay with the project.
    bool askSaveProject();

    /// Saves what took work to write at once, where the project has a file: a crash or the end of the desktop session must not take it. A
    /// failure is told by whoever watches the file, and it is saved again at the end.
    void keep();
    void setModified() { mModified = 1; }
    [[nodiscard]] bool isModified() const { return mModified != 0; }
    [[nodiscard]] QString lastPath() const;

Q_SIGNALS:
    /// Another project, or the same under another name.
    void signalChanged();

private:
    bool readProject(const QString& path);
    QString askSaveName();
    [[nodiscard]] bool hasName() const;
    /// The file to save to, asked for where it must be; empty when the user gave up.
    QString saveName(bool askName);
    bool writeProject(const QString& path);
    /// Tells that the last save failed. @return whether to quit all the same, which is offered where the user wants that.
    bool isGoneOn(const QString& path, bool isQuit);

    Session mSession;
    QWidget* mpWindow;
    int mModified = 0;
    bool mHasFile = true; ///< a run begins with the current project's file; a new project has none yet
};

} // namespace ZARN
