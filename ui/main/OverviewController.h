#pragma once

#include "analysis/CycleReview.h"
#include "project/Session.h"

#include <QObject>

#include <optional>

class QAction;
class QStackedWidget;

namespace ZARN {

class CardController;
class DialogCard;
class DialogData;
class DialogOverview;
class RecordSession;

/// Shows the overview in place of the data, and opens what the user chooses there: flights, and incidents in the graph. Owned by the main
/// window; what it is given outlives it.
class OverviewController : public QObject {
    Q_OBJECT

public:
    /// @param action checked while the overview is seen
    OverviewController(const Session& session, RecordSession& record, CardController& cards, DialogCard& browser, DialogData& data,
                       QStackedWidget& pages, QAction& action, QObject* pParent = nullptr);

    [[nodiscard]] DialogOverview& view() { return *mpOverview; }
    /// Another card is open: its overview is what is seen first.
    void showCard();
    /// Between the overview and what was seen before.
    void toggle(bool isShown);
    /// To the incident after, or before, the view time, of what is loaded.
    void step(bool forward);

private:
    void open(uint32_t cycle, int flight);
    void openIncident(uint32_t cycle, const Incident& incident);
    /// Whether that cycle is what is loaded, and not one of its flights.
    [[nodiscard]] bool isWholeCycle(uint32_t cycle) const;
    void slotRecord();
    void show(const Incident& incident);
    void showOverview();
    void slotPage();
    void review();

    Session mSession;
    RecordSession& mRecord;
    CardController& mCards;
    DialogCard& mBrowser;
    DialogData& mData;
    QStackedWidget& mPages;
    QAction& mAction;
    DialogOverview* mpOverview; // owned by the pages
    QWidget* mpBefore = nullptr; ///< the page that the overview covers
    std::optional<std::pair<uint32_t, Incident>> mWanted; ///< to be shown once its cycle is loaded
    std::vector<Incident> mIncidents; ///< of the loaded cycle
    std::optional<unsigned> mReviewed; ///< the version of the record that they are of
};

} // namespace ZARN
