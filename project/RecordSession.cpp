#include "project/RecordSession.h"

#include "card/CardContainer.h"
#include "card/PowerUp.h"

#include <cmath>
#include <utility>

namespace ZARN {

void RecordSession::setRecord()
{
    mpRecord = &mContainer.recordData();
    takeSpan();
    mViewTime = mStartTime;
    ++mVersion.record;
    schedule();
}

void RecordSession::clearRecord()
{
    mpRecord = nullptr;
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
    if (told.decoding != mVersion.decoding)
        Q_EMIT decodingChanged();
    if (told.selection != mVersion.selection)
        Q_EMIT selectionChanged();
    // What is filled anew needs its time again, even that which it picked itself.
    const bool isTimeOnly = !isRecord && told.decoding == mVersion.decoding && told.selection == mVersion.selection;
    Q_EMIT timeChanged(mViewTime, isTimeOnly ? mpSource : nullptr);
    mpSource = nullptr;
}

} // namespace ZARN
