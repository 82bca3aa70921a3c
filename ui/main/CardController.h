#pragma once

#include "app/BackgroundTask.h"
#include "profile/DecodingContext.h"
#include "project/Session.h"

#include <functional>
#include <list>
#include <memory>
#include <optional>

class QDateTime;
class QWidget;

namespace ZARN {

class DialogCard;
class RecentFolders;
class RecordData;
class StatusProgress;

/// Opens card folders and loads what the card browser chooses, on a thread of its own: the window goes on with what it shows until all of
/// it is there. What is asked for last counts; it takes the place of what is still being read. Owned by the main window.
class CardController : public QObject {
    Q_OBJECT

public:
    CardController(const Session& session, DialogCard& browser, RecentFolders& recent, StatusProgress& progress, QWidget* pWindow);
    ~CardController() override;

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
    /// Shows what comes in from a bus, in place of what is loaded or being read. @param powerUp the wall clock at time 0
    void beginLive(const QDateTime& powerUp, std::shared_ptr<RecordData> pRecord);

    /// Whether something is being read or worked out.
    [[nodiscard]] bool isBusy() const { return mTask.isRunning(); }
    /// Ends it; everything stays as it was.
    void cancel();

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
    /// The memory does not suffice for what is loaded and what shall be: whoever shows the first must let go of it.
    void signalDataChanging();
    /// Other records are loaded.
    void signalDataChanged();
    /// What was loaded is the same; what is worked out of it may be not.
    void signalRecalculated();
    /// Nothing came of what was begun, by the user's will or not: what was loaded is the same.
    void signalCancelled();
    /// The user chose the cycle that comes in from a bus, or a flight of it (from 0; else -1).
    void signalLiveChosen(int flight);
    /// All that was asked for is done.
    void signalIdle();

private:
    /// A piece of work on a card.
    struct Job {
        std::function<bool(CardContainer& card)> work; ///< in the other thread, on a draft of the card; @return whether it succeeded
        std::function<void(bool isDone)> finish;       ///< back here
    };

    void start(Job job);
    void begin();
    void slotFinished();
    void recalculateIfOutdated();
    void load(const std::function<bool(CardContainer& card)>& work, std::optional<int> flight);
    void finishLoad();
    bool showFolder(const QString& folder, bool isRead);
    void finishOpening(const QString& folder, bool isRead);
    static QString refusal(const QString& folder);
    /// The one way to write a folder's path: absolute, without a separator at its end.
    static QString cleaned(const QString& path);
    void warn(const QString& text);

    Session mSession;
    DialogCard& mBrowser;
    RecentFolders& mRecent;
    StatusProgress& mProgress;
    QWidget* mpWindow;
    QString mProblem;
    int mFlight = -1;
    bool mIsLoaded = false;    ///< something of the card that is shown
    unsigned mDecoding = 0;    ///< counts the profiles and units that were in force
    unsigned mDecodedBy = 0;   ///< that which the loaded data were worked out by
    unsigned mJobDecoding = 0; ///< that which was in force when the job began
    bool mIsDone = false;      ///< what the job's work told
    std::optional<Job> mJob;   ///< being done
    std::optional<Job> mNext;  ///< takes its place
    DecodingContext mContext;  ///< by which the job decodes
    std::unique_ptr<CardContainer> mpDraft;
    BackgroundTask mTask; // the last: it refers to what stands above
};

} // namespace ZARN
