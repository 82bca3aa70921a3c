#pragma once

#include "project/Session.h"

#include <QObject>
#include <QString>

#include <functional>
#include <list>

class QMimeData;
class QWidget;

namespace ZARN {

class DialogCard;
class RecentFolders;
class StatusProgress;

/// Opens card folders and loads what the card browser chooses. Loads one thing at a time: what is asked for while another load
/// paints the windows waits until that is done. Owned by the main window.
class CardController : public QObject {
    Q_OBJECT

public:
    CardController(const Session& session, DialogCard& browser, RecentFolders& recent, StatusProgress& progress, QWidget* pWindow);

    /// Asks for a folder and opens it.
    void askFolder();
    /// Opens a folder that the user chose; a message box says when it is gone, in which case nothing changes, or holds no record file.
    void openFolder(const QString& path);
    /// Opens the folder of the last run; what is missing is said by problem() alone, a pulled card is no reason to stop the user.
    void restoreFolder(const QString& path);
    /// Writes the demo card below a folder, unless it is there, and opens it.
    void openDemoCard(const QString& parentFolder);
    /// Works out anew, without reading, what depends on profile and units: flights, statistics, path. The same flight stays selected.
    void recalculate();

    void loadCycle(unsigned int cycle, int flight);
    void loadRecords(const std::list<QString>& files);

    /// The folder that a drop names: a folder itself, or that of a file; empty when it names none.
    static QString droppedFolder(const QMimeData* pData);
    /// What keeps the last folder from being shown, for people; empty when nothing does.
    [[nodiscard]] const QString& problem() const { return mProblem; }
    /// What of the card could not be read, when its folder was or in the last load, for people: the first of the files by name with
    /// the reasons. Empty when there is nothing to tell.
    [[nodiscard]] QString fileProblems() const;
    /// Whether there are records, and they are of the card that is shown.
    [[nodiscard]] bool hasData() const;

Q_SIGNALS:
    /// Another folder was read, or could not be.
    void signalFolderChanged();
    /// The loaded records are about to be replaced: whoever shows them must let go of them.
    void signalDataChanging();
    /// Other records are loaded.
    void signalDataChanged();
    /// What was loaded is the same; what is worked out of it may be not.
    void signalRecalculated();

private:
    using Work = std::function<void()>;

    /// Begins the work later when another load is running. @return whether it does.
    bool postpone(const Work& work);
    void runBusy(const Work& work);
    bool readFolder(const QString& folder);
    static QString refusal(const QString& folder);
    /// The one way to write a folder's path: absolute, without a separator at its end.
    static QString cleaned(const QString& path);
    void loadNow(unsigned int cycle, int flight);
    void runLoad(const Work& work);
    void warn(const QString& text);

    Session mSession;
    DialogCard& mBrowser;
    RecentFolders& mRecent;
    StatusProgress& mProgress;
    QWidget* mpWindow;
    QString mProblem;
    int mFlight = -1;
    bool mIsLoaded = false; ///< something of the card that is shown
    bool mBusy = false;
};

} // namespace ZARN
