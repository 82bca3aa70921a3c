#pragma once

#include "analysis/EventList.h"
#include "app/BackgroundTask.h"
#include "project/Session.h"
#include "ui/data/model/DataView.h"
#include "ui/data/model/GraphMoment.h"

#include <QWidget>

class QLabel;
class QTableWidget;
class QTableWidgetItem;

namespace ZARN {

class DecodingContext;
class TimeFollower;

/// What the lists of events have in common: one row an event in ascending time; the one chosen last moves the view time. With a flight
/// selected, the events outside of it are there, but dimmed. Which events there are is told by the derived class.
class DialogDataEvents : public QWidget, public DataView {
    Q_OBJECT

public:
    static constexpr int kMaxRows = 100000; ///< a damaged record may make millions; the first ones tell

    /// Texts and colours come from the profile but are rebuilt with the record alone.
    void updateProfile() override {}
    void updateRecord(RecordData* pRecord) override;
    [[nodiscard]] int growthPeriod() const override { return 1000; } // all of the record is looked through
    void setTime(double time) override;
    void updateSettings() override { showTimes(); }
    /// Finds the events in another thread, and tells when they are found; the rows wait until they are seen.
    void prepare(RecordData* pRecord) override;

    /// Those of the selected flight, or all.
    [[nodiscard]] int eventCount() const override;
    [[nodiscard]] const EventList* eventList() const override { return &mEvents; }
    /// Below the events, each with its moment to be chosen.
    void setNotes(const std::vector<CycleNote>& notes) override;

Q_SIGNALS:
    /// The time of the event that the user chose, in seconds.
    void signalTime(double time);
    /// The user wants to see an event in the graph.
    void signalMoment(const GraphMoment& moment);
    /// The events of prepare() are found.
    void signalEvents();

protected:
    /// What a list is made of.
    struct Kind {
        EventList (*scan)(const RecordData& data, const DecodingContext& context);
        QString (*stateName)(int state);
        QString title; ///< of the event column
        QString empty; ///< what the view says when there is no event
    };

    DialogDataEvents(const Session& session, const Kind& kind, QWidget* pParent);

    void changeEvent(QEvent* pEvent) override;
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private:
    void createTable();
    void updateFonts();
    void updateColours();
    void giveColours(QTableWidgetItem& time, QTableWidgetItem& text, const Event& event) const;
    void find();
    void slotFound();
    void fillTable();
    /// In the way that the user wants times told.
    void showTimes();
    void showNotes();
    [[nodiscard]] QTableWidgetItem* createText(const Event& event) const;
    [[nodiscard]] bool isInside(const Event& event) const;
    void updateHint();
    [[nodiscard]] bool isBehind() const;

    Session mSession;
    const Kind mKind;
    RecordData* mpRecord = nullptr;
    EventList mEvents;
    std::vector<CycleNote> mNotes;
    QTableWidget* mpTable;
    TimeFollower* mpFollower = nullptr; ///< owned by the table
    QLabel* mpHint;
    QLabel* mpNotes;
    double mTime = 0.0;       ///< the view time that was told last
    bool mPrepared = false;   ///< the events are found, but not in the rows
    bool mIsSought = false;   ///< they are to be found in another thread
    bool mIsOutdated = false; ///< what is being found there is of no use any more
    EventList mFound;         ///< by the task
    BackgroundTask mTask;
};

} // namespace ZARN
