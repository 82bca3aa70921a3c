#include "project/RecordSession.h"

#include "card/CardContainer.h"
#include "card/PowerUp.h"

#include <cmath>
#include <utility>

namespace ZARN {

void RecordSession::setRecord()
{
    if (!mpLast)
        mpLast = mpRecord;
    mpRecord = mContainer.record();
    takeSpan();
    mViewTime = mStartTime;
    ++mVersion.record;
    schedule();
}

void RecordSession::growRecord(double viewTime, bool isReviewed, const QObject* pSource)
{
    if (!mpLast)
        mpLast = mpRecord;
    mpRecord = mContainer.record();
    takeSpan();
    ++mVersion.growth;
    mVersion.review += isReviewed ? 1 : 0;
    setTime(viewTime, pSource);
    tell();
}

void RecordSession::clearRecord()
{
    mpLast = std::exchange(mpRecord, {});
    ++mVersion.record;
    tell();
}

void RecordSession::changeFlights()
{
    if (!mpRecord)
        return;
    takeSpan(); // a flight may begin and end elsewhere
    ++mVersion.flights;
    schedule();
}

void RecordSession::takeSpan()
{
    mPowerUp = PowerUp::ofLoaded(mContainer);
    mStartTime = mContainer.startTime();
    mEndTime = mContainer.endTime();
}

void RecordSession::changeProfile()
{
    ++mVersion.profile;
    changeUnit();
}

void RecordSession::changeUnit()
{
    ++mVersion.decoding;
    schedule();
}

void RecordSession::changeSelection()
{
    ++mVersion.selection;
    schedule();
}

void RecordSession::setTime(double seconds, const QObject* pSource)
{
    if (mIsTelling || std::isnan(seconds))
        return;
    if (mIsScheduled && pSource != mpSource)
        tell(); // not everybody follows every source
    mViewTime = seconds;
    mpSource = pSource;
    ++mVersion.time;
    schedule();
}

void RecordSession::schedule()
{
    if (!std::exchange(mIsScheduled, true))
        QMetaObject::invokeMethod(this, &RecordSession::tell, Qt::QueuedConnection);
}

void RecordSession::tell()
{
    mIsScheduled = false;
    const Version told = std::exchange(mTold, mVersion);
    if (told == mVersion)
        return; // it was told before its turn
    const auto quiet = telling();
    const bool isRecord = told.record != mVersion.record || told.flights != mVersion.flights;
    if (isRecord)
        Q_EMIT recordChanged();
    if (told.growth != mVersion.growth)
        Q_EMIT recordGrown();
    if (told.decoding != mVersion.decoding)
        Q_EMIT decodingChanged();
    if (told.selection != mVersion.selection)
        Q_EMIT selectionChanged();
    // What is filled anew needs its time again, even that which it picked itself.
    const bool isTimeOnly = !isRecord && told.decoding == mVersion.decoding && told.selection == mVersion.selection;
    Q_EMIT timeChanged(mViewTime, isTimeOnly ? mpSource : nullptr);
    mpSource = nullptr;
    mpLast.reset();
}

} // namespace ZARN
