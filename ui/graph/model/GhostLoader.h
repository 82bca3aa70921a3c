#pragma once

#include "app/BackgroundTask.h"
#include "ui/graph/model/GhostCycle.h"

namespace ZARN {

/// Reads a cycle of a card to compare with, while the window goes on. Reads the card by itself: what is loaded stays as it is.
class GhostLoader : public QObject {
    Q_OBJECT

public:
    /// A cycle of a card, which may be the one that is open.
    struct Wish {
        QString path;
        unsigned int cycle = 0;
        QString name;
        int flight = 0; ///< from 1, whose take-off is meant; 0 for the first
    };
    explicit GhostLoader(QObject* pParent = nullptr);

    /// What an earlier call asked for is no longer wanted.
    void start(const Wish& wish, const DecodingContext& context);
    void stop();

Q_SIGNALS:
    void signalLoaded(std::shared_ptr<const ZARN::GhostCycle> pCycle, int flight);
    /// @param reason for people; may be empty
    void signalFailed(const QString& reason);

private:
    void begin();
    void slotFinished();
    void read(const Wish& wish, const DecodingContext& context, Progress& progress);

    std::optional<std::pair<Wish, DecodingContext>> mNext;
    int mFlight = 0;
    std::shared_ptr<const GhostCycle> mpFound;
    QString mProblem;
    BackgroundTask mTask; // the last: it waits for work that refers to the others
};

} // namespace ZARN
