#pragma once

#include "analysis/IncidentText.h"
#include "live/LiveFeed.h"
#include "live/LiveMemory.h"
#include "project/Session.h"
#include "ui/live/LiveReviewer.h"
#include "ui/live/LiveText.h"

#include <QElapsedTimer>
#include <QTimer>

#include <memory>

class QShortcut;

namespace ZARN {

class CardController;
class DialogCard;
class DialogData;
class DialogLive;
class LiveBar;
class MainCommands;
class MainPanels;
class RecordSession;

/// Shows in the main window what a bus sends: as a power cycle that grows, at its newest moment, until the user pauses or looks back. What
/// the windows and their threads get are snapshots, which never change. Ends when another card is opened. Owned by the main window;
/// what it is given outlives it.
class LiveController : public QObject {
    Q_OBJECT

public:
    /// The parts of the window that it works with.
    struct Parts {
        CardController& cards;
        DialogCard& browser;
        DialogData& data;
        MainPanels& panels;
        MainCommands& commands;
        RecordSession& record;
    };

    LiveController(const Session& session, const Parts& parts, QWidget* pWindow);
    ~LiveController() override;

    /// Asks which bus.
    void ask();
    /// Goes to the one that was watched last; does nothing when none was.
    void connectLast();
    void connectTo(const LiveWish& wish);
    /// What is taken from now on is another run. @param window seconds that are kept of it
    void beginRun(double window);
    /// What was received stays in view.
    void disconnectBus();

    /// What comes in from a bus. @param now the wall clock
    void take(const LiveRecords& records, const QDateTime& now);
    /// The display stays as it is, while all goes on; or follows again.
    void setPaused(bool isPaused);
    [[nodiscard]] bool isPaused() const { return mIsPaused; }
    /// Shows all that has come in.
    void showNewest();

Q_SIGNALS:
    /// What is shown comes from a bus now.
    void signalBegun();

private:
    void tick();
    void passSilence();
    void updateBar();
    void slotStatus(const LiveStatus& status);
    void slotTime(double seconds, const QObject* pSource);
    void slotChosen(int flight);
    void slotFound();
    void slotCard();
    void slotSpace();
    void showIncident(std::size_t sentence);
    [[nodiscard]] bool isShown() const;

    Session mSession;
    const Parts mParts;
    QWidget* mpWindow;
    LiveBar* mpBar;
    DialogLive* mpDialog = nullptr; ///< made when it is wanted
    QShortcut* mpSpace;
    LiveText mText;
    LiveWish mWish;
    std::unique_ptr<LiveMemory> mpMemory; ///< none while no bus was watched since the last card
    QDateTime mPowerUp;
    std::vector<Incident> mIncidents;
    std::vector<IncidentSentence> mSentences; ///< of these
    double mShownTime = 0.0; ///< that the views were sent to
    std::size_t mFlights = 0; ///< that are listed
    std::size_t mChannels = 0;
    QElapsedTimer mSinceFrames;
    unsigned mDecoding = 0; ///< version by which the review is made
    bool mIsRunning = false;
    bool mHasNew = false;     ///< what is not shown
    bool mIsReviewed = true;  ///< all of it is, or is being
    bool mHasReview = false;  ///< that the views have not been told of
    bool mIsShowing = false;  ///< the views are told of it
    bool mIsPaused = false;
    QTimer mTick;
    LiveReviewer mReviewer;
    LiveFeed mFeed;
};

} // namespace ZARN
