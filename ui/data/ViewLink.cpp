#include "ui/data/ViewLink.h"

#include "ui/data/model/DataView.h"

#include <QEvent>
#include <QWidget>

#include <utility>

namespace ZARN {

namespace {

/// Whether what a record tells is another one.
bool isOtherRecord(const RecordSession::Version& a, const RecordSession::Version& b)
{
    return a.record != b.record || a.flights != b.flights || a.decoding != b.decoding;
}

} // namespace

ViewLink::ViewLink(RecordSession& session, DataView& view, QWidget& widget)
    : QObject(&widget), mSession(session), mView(view), mWidget(widget), mShown(session.version()), mPrepared(session.version())
{
    connect(&session, &RecordSession::recordChanged, this, &ViewLink::slotChanged);
    connect(&session, &RecordSession::decodingChanged, this, &ViewLink::slotChanged);
    connect(&session, &RecordSession::selectionChanged, this, &ViewLink::slotChanged);
    connect(&session, &RecordSession::timeChanged, this, &ViewLink::slotTime);
    widget.installEventFilter(this);
}

void ViewLink::slotChanged()
{
    if (mWidget.isVisible())
        updateData();
    else
        prepare();
}

void ViewLink::prepare()
{
    const RecordSession::Version was = std::exchange(mPrepared, mSession.version());
    if (was.record != mPrepared.record)
        mView.updateRecord(nullptr); // what it still refers to may go
    if (isOtherRecord(was, mPrepared))
        mView.prepare(mSession.record());
}

void ViewLink::updateData()
{
    if (mPrepared.record != mSession.version().record)
        mView.updateRecord(nullptr);
    mPrepared = mSession.version();
    const RecordSession::Version was = std::exchange(mShown, mPrepared);
    mShown.time = was.time;
    const bool isProfile = was.decoding != mShown.decoding || was.selection != mShown.selection;
    if (was.profile != mShown.profile)
        mView.loadProfile();
    if (isOtherRecord(was, mShown) && isProfile)
        mView.update(mSession.record());
    else if (isOtherRecord(was, mShown))
        mView.updateRecord(mSession.record());
    else if (isProfile)
        mView.updateProfile();
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
