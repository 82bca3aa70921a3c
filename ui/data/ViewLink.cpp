#include "ui/data/ViewLink.h"

#include "ui/data/model/DataView.h"

#include <QEvent>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace ZARN {

namespace {

constexpr qint64 kRest = 3; // times as long as it took, until a view is told again that the record grows

/// Whether other samples are shown, or the same as other values.
bool hasOtherValues(const RecordSession::Version& a, const RecordSession::Version& b)
{
    return a.record != b.record || a.decoding != b.decoding;
}

} // namespace

ViewLink::ViewLink(RecordSession& session, DataView& view, QWidget& widget)
    : QObject(&widget), mSession(session), mView(view), mWidget(widget), mShown(session.version()), mPrepared(session.version())
{
    connect(&session, &RecordSession::recordChanged, this, &ViewLink::slotChanged);
    connect(&session, &RecordSession::recordGrown, this, &ViewLink::slotGrown);
    connect(&session, &RecordSession::decodingChanged, this, &ViewLink::slotChanged);
    connect(&session, &RecordSession::selectionChanged, this, &ViewLink::slotChanged);
    connect(&session, &RecordSession::timeChanged, this, &ViewLink::slotTime);
    widget.installEventFilter(this);
    mLate.setSingleShot(true);
    connect(&mLate, &QTimer::timeout, this, &ViewLink::slotLate);
    mClock.start();
}

void ViewLink::slotChanged()
{
    if (mWidget.isVisible())
        updateData();
    else
        prepare();
}

/// Whether nothing else has changed.
bool ViewLink::isOnlyGrown() const
{
    RecordSession::Version version = mSession.version();
    version.growth = mShown.growth;
    version.review = mShown.review;
    version.time = mShown.time;
    return version == mShown && !mIsLetGo;
}

void ViewLink::slotGrown()
{
    if (!mWidget.isVisible()) {
        letGo();
        return prepare();
    }
    const qint64 begin = mClock.elapsed();
    if (begin < mNextGrowth) {
        if (!mLate.isActive())
            mLate.start(static_cast<int>(mNextGrowth - begin));
        return;
    }
    updateData();
    const qint64 end = mClock.elapsed();
    mNextGrowth = std::max(begin + mView.growthPeriod(), end + kRest * (end - begin));
}

void ViewLink::slotLate()
{
    if (!mWidget.isVisible() || !isOnlyGrown())
        return;
    const auto quiet = mSession.telling();
    slotGrown();
    mView.setTime(mSession.viewTime());
}

void ViewLink::letGo()
{
    if (std::exchange(mIsLetGo, true))
        return;
    mView.updateRecord(nullptr);
    mpHeld.reset();
}

void ViewLink::prepare()
{
    const RecordSession::Version was = std::exchange(mPrepared, mSession.version());
    if (was.record != mPrepared.record)
        mView.updateRecord(nullptr); // what it still refers to may go
    if (was.review != mPrepared.review || hasOtherValues(was, mPrepared))
        mView.prepare(mSession.record());
    else if (was.flights != mPrepared.flights)
        mView.prepareFlights(mSession.record());
    else
        return;
    mpHeld = mSession.sharedRecord();
}

void ViewLink::updateData()
{
    if (mPrepared.record != mSession.version().record)
        mView.updateRecord(nullptr);
    mPrepared = mSession.version();
    const std::shared_ptr<RecordData> pLast = std::exchange(mpHeld, mSession.sharedRecord()); // the view refers to it still
    const RecordSession::Version was = std::exchange(mShown, mPrepared);
    mShown.time = was.time;
    const bool isProfile = was.decoding != mShown.decoding || was.selection != mShown.selection;
    if (was.profile != mShown.profile)
        mView.loadProfile();
    const bool wasLetGo = std::exchange(mIsLetGo, false);
    const bool hasOther = wasLetGo || hasOtherValues(was, mShown);
    const bool isGrown = !hasOther && was.growth != mShown.growth;
    if (isGrown)
        mView.growRecord(mSession.record(), was.review != mShown.review);
    if (hasOther && isProfile)
        mView.update(mSession.record());
    else if (hasOther)
        mView.updateRecord(mSession.record());
    else if (isProfile)
        mView.updateProfile();
    if (!hasOther && was.flights != mShown.flights)
        mView.updateFlights(mSession.record());
}

void ViewLink::slotTime(double seconds, const QObject* pSource)
{
    const bool isKept = pSource && (pSource == &mWidget || pSource == mpIgnored);
    if (!isKept && !mWidget.isVisible())
        return;
    mShown.time = mSession.version().time;
    if (!isKept)
        mView.setTime(seconds);
}

void ViewLink::update()
{
    if (mShown == mSession.version())
        return;
    const auto quiet = mSession.telling();
    updateData();
    mShown.time = mSession.version().time;
    mView.setTime(mSession.viewTime());
}

bool ViewLink::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::Show)
        update();
    return QObject::eventFilter(pObject, pEvent);
}

} // namespace ZARN
