#pragma once

#include "project/Session.h"
#include "ui/overview/model/CardReviewer.h"

#include <QElapsedTimer>
#include <QScrollArea>
#include <QTimer>

#include <deque>

class QLabel;
class QProgressBar;
class QVBoxLayout;

namespace ZARN {

class WidgetCycleCard;

/// The first thing to see of a card: was the engine all right? One card a power cycle, the newest first, each as soon as it is known. The
/// main window owns it and opens what its signals name.
class DialogOverview : public QScrollArea {
    Q_OBJECT

public:
    explicit DialogOverview(const Session& session, QWidget* pParent = nullptr);

    /// Begins anew: another card is open, or another profile or unit in force. Works when it is seen; hidden, it waits for that.
    void reset();
    /// How times are told may be another way.
    void updateTimes();
    /// What is known of cycles beside the card, from the next review on.
    void setSupplement(CardReviewer::Supplement supplement) { mReviewer.setSupplement(std::move(supplement)); }
    /// What has to be done to the engines of the card, a sentence each.
    void setServices(const QStringList& services);
    /// Loads the newest flight, as Return does; when it is known, where the review has not come to it.
    void chooseNewest();

Q_SIGNALS:
    /// @param flight from 0; -1 for the whole cycle
    void signalFlight(uint32_t cycle, int flight);
    /// An incident to show in the graph.
    void signalIncident(uint32_t cycle, const ZARN::Incident& incident);

protected:
    void showEvent(QShowEvent* pEvent) override;
    void hideEvent(QHideEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;

private:
    void begin();
    void addNext();
    [[nodiscard]] std::shared_ptr<const CycleOverview> timed(const CycleOverview& cycle) const;
    void finish();
    void tellStopped(const QString& problem);
    [[nodiscard]] QString cardText() const;
    static QString timesText(ETimeReference times);

    Session mSession;
    CardReviewer mReviewer;
    QLabel* mpCardText;
    QProgressBar* mpProgress;
    QLabel* mpEmpty;
    QLabel* mpServices;
    QLabel* mpStopped; ///< why not all was reviewed
    QVBoxLayout* mpCards;
    std::vector<WidgetCycleCard*> mCards;
    std::deque<std::shared_ptr<const CycleOverview>> mPending; ///< reviewed, and not shown yet
    QElapsedTimer mProgressTold;
    QTimer mAddTimer;
    ETimeReference mTimes = ETimeReference::ePowerUp; ///< of what is shown
    bool mIsNewestWanted = false; ///< once it is known
    bool mIsOld = false; ///< to be made anew when it is seen
};

} // namespace ZARN
