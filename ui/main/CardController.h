#pragma once

#include "project/Session.h"

#include <QObject>
#include <QString>

#include <functional>
#include <list>
#include <vector>

class QMimeData;
class QWidget;

namespace ZARN {

class DialogCard;
class RecentFolders;
class StatusProgress;
struct CardProblem;

/// Opens card folders and loads what the card browser chooses. Loads one thing at a time: what is asked for while another load
/// paints the windows waits until that is done. Owned by the main window.
class CardController : public QObject {
    Q_OBJECT

public:
    CardController(const Session& session, DialogCard& browser, RecentFolders& recent, StatusProgress& progress, QWidget* pWindow);

    /// Asks for a folder and opens it.
    void askFolder();
    /// Opens a folder that the user chose; a message box says when it is gone or holds no record file.
    void openFolder(const QString& path);
    /// Opens the folder of the last run; what is missing is said by problem() alone, a pulled card is no reason to stop the user.
    void restoreFolder(const QString& path);
    /// Writes the demo card below a folder, unless it is there, and opens it.
    void openDemoCard(const QString& parentFolder);
    /// Works out anew, without reading, what depends on profile and units: flights, statistics, path. The same flight stays selected.
    void recalculate();

    /// While it holds, loading is put off: somebody reads the data and lets the windows live meanwhile.
    void hold(bool on) { mBusy = on; }
    void loadCycle(unsigned int cycle, int flight);
    void loadRecords(const std::list<QString>& files);

    /// The folder that a drop names: a folder itself, or that of a file; empty when it names none.
    static QString droppedFolder(const QMimeData* pData);
    /// What keeps the last folder from being shown, for people; empty when nothing does.
    [[nodiscard]] const QString& problem() const { return mProblem; }

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
    bool readFolder(const QString& path);
    void loadNow(unsigned int cycle, int flight);
    void runLoad(const Work& work);
    void reportLoad();
    void warn(const QString& text);
    /// What is wrong with the folder's files, for people; empty when nothing is.
    [[nodiscard]] QString folderProblems() const;
    /// The files by name with the reasons, for people: the first of them.
    [[nodiscard]] static QString listed(const std::vector<CardProblem>& problems);

    Session mSession;
    DialogCard& mBrowser;
    RecentFolders& mRecent;
    StatusProgress& mProgress;
    QWidget* mpWindow;
    QString mProblem;
    std::list<QString> mFiles; ///< loaded by name; empty when a cycle is loaded
    int mFlight = -1;
    bool mBusy = false;
};

} // namespace ZARN
