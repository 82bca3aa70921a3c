#pragma once

#include "project/Session.h"
#include "ui/main/LogbookIntake.h"
#include "ui/overview/model/CardReviewer.h"

#include <QObject>

#include <memory>
#include <optional>

namespace ZARN {

class CardController;
class DialogCard;
class DialogLogbook;
class LogbookBar;
class LogbookExport;
class LogbookOptions;
class LogbookWorker;
class MainCommands;
class MainPanels;
class Notices;
class OverviewController;
class RecordSession;
struct CyclePlace;

/// The logbook beside the main window: asks once whether one is kept, takes opened cards in, tells the overview what it knows of their engines,
/// and opens what the user chooses in it. Owned by the main window; what it is given outlives it.
class LogbookController : public QObject {
    Q_OBJECT

public:
    /// The parts of the window that it works with.
    struct Parts {
        CardController& cards;
        DialogCard& browser;
        OverviewController& overview;
        MainPanels& panels;
        MainCommands& commands;
        Notices& notices;
        RecordSession& record;
        bool isReduced = false; ///< the display has no room for questions
    };

    LogbookController(const Session& session, const Parts& parts, const QString& dataPath, QWidget* pWindow);
    ~LogbookController() override;

    /// The file of the profile that is in force.
    void setProfile(const QString& file) { mIntake.setProfile(file); }
    [[nodiscard]] LogbookWorker& worker() { return *mpWorker; }
    void show();

Q_SIGNALS:
    void signalWritten(const QString& path);

private:
    /// What is to be shown once its card is open.
    struct Wanted {
        QString folder;
        uint32_t cycle = 0;
        int flight = 0; ///< from 1; 0: the whole cycle
        double time = 0.0; ///< a NaN: none
    };
    void createWindow();
    void slotCard();
    void slotAnswer(bool isWanted);
    void takeCard(bool isAgain = false);
    void tellPutAside(const QString& error);
    void tellProblems();
    [[nodiscard]] bool isAllowed() const;
    void slotTaken(const QString& folder, const QString& error, const QString& unarchived);
    void askServices();
    void open(const QString& cycleId, int flight, double time);
    void openAt(const CyclePlace& place, int flight, double time);
    void showWanted();
    void slotRecord();
    [[nodiscard]] bool isDemo() const;
    [[nodiscard]] CardReviewer::Supplement supplement() const;

    Session mSession;
    const Parts mParts;
    const QString mDataPath;
    const QString mStore;
    QWidget* mpWindow;
    std::unique_ptr<LogbookWorker> mpWorker;
    std::unique_ptr<DialogLogbook> mpDialog; ///< made when it is wanted
    LogbookBar* mpBar;
    LogbookOptions* mpOptions = nullptr;
    LogbookExport* mpExport;
    bool mIsThere = true; ///< the store
    QString mPutAside;    ///< what became of a damaged one
    QString mProblem;     ///< with the card that was taken last
    std::optional<Wanted> mWanted;
    std::optional<double> mWantedTime; ///< once the record is there
    LogbookIntake mIntake;
};

} // namespace ZARN
