#pragma once

#include "project/RecordSession.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QWidget;

namespace ZARN {

class DataView;

/// Keeps one view at what the record session holds. A view in sight is brought up to date at once, and filled once however much has
/// changed; one that is not in sight when it is shown. The time that the view picked itself is not told back to it. A record that grows is
/// told to a view no oftener than it can show it in a quarter of the time; what it shows is kept until then. Belongs to the view's widget.
class ViewLink : public QObject {
    Q_OBJECT

public:
    ViewLink(RecordSession& session, DataView& view, QWidget& widget);

    /// The times that one picks leave the view where it is.
    void ignore(const QObject& source) { mpIgnored = &source; }
    /// Brings the view up to date, although nobody may see it.
    void update();

    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private:
    void slotChanged();
    void slotGrown();
    void slotLate();
    void slotTime(double seconds, const QObject* pSource);
    void prepare();
    void updateData();
    [[nodiscard]] bool isOnlyGrown() const;
    void letGo();

    RecordSession& mSession;
    DataView& mView;
    QWidget& mWidget;
    const QObject* mpIgnored = nullptr;
    RecordSession::Version mShown;    ///< what the view shows
    RecordSession::Version mPrepared; ///< what others show of it
    std::shared_ptr<RecordData> mpHeld; ///< what the view refers to
    bool mIsLetGo = false;              ///< the view was in nobody's sight when the record grew, and shows none
    QElapsedTimer mClock;
    qint64 mNextGrowth = 0; ///< on that clock, milliseconds
    QTimer mLate;           ///< until then, for growth that was left out
};

} // namespace ZARN
