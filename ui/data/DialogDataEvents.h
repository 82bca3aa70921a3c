#pragma once

#include "analysis/EventList.h"
#include "project/Session.h"
#include "ui/data/model/DataView.h"

#include <QWidget>

class QLabel;
class QTableWidget;

namespace ZARN {

/// What the lists of events have in common: one row an event in ascending time, which moves the view time when it is chosen. Which
/// events there are is told by the derived class.
class DialogDataEvents : public QWidget, public DataView {
    Q_OBJECT

public:
    static constexpr int kMaxRows = 100000; ///< a damaged record may make millions; the first ones tell

    /// Texts and colours come from the profile but are rebuilt with the record alone.
    void updateProfile() override {}
    void updateRecord(RecordData* pRecord) override;
    void setTime(double time) override;

    [[nodiscard]] int eventCount() const override { return static_cast<int>(mEvents.events().size()); }
    [[nodiscard]] const EventList& events() const { return mEvents; }

Q_SIGNALS:
    /// The time of the event that the user chose, in seconds.
    void signalTime(double time);

protected:
    using Scan = EventList (*)(const RecordData& data, Profile& profile);

    /// @param title of the event column @param empty what the view says when there is no event
    DialogDataEvents(const Session& session, Scan scan, const QString& title, const QString& empty, QWidget* pParent);

    void showEvent(QShowEvent* pEvent) override;
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private Q_SLOTS:
    void slotSelect();
    void slotChoose();

private:
    void createTable(const QString& title);
    void fillTable();
    void updateHint();
    void centre();
    [[nodiscard]] bool isAhead(int key) const;

    Session mSession;
    Scan mScan;
    QString mEmptyText;
    RecordData* mpRecord = nullptr;
    EventList mEvents;
    QTableWidget* mpTable;
    QLabel* mpHint;
    double mTime = 0.0; ///< the view time that was told last
    bool mBusy = false;
    bool mReported = false; ///< the selected row's time was told
    bool mUnseen = false;   ///< the row was selected while nobody saw it
};

} // namespace ZARN
