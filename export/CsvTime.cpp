#include "export/CsvTime.h"

#include "app/NumberText.h"
#include "app/TimeText.h"

#include <algorithm>
#include <cstdlib>

namespace ZARN {

namespace {

constexpr int64_t kDayMilliseconds = 24 * 3600 * INT64_C(1000);

} // namespace

CsvTime::CsvTime(const CsvForm& form, const QDateTime& powerUp, const TimeReference& times, uint32_t resolution)
    : mForm(form), mHasClock(form.isForSpreadsheet && powerUp.isValid()), mPowerUp(mHasClock ? powerUp.toMSecsSinceEpoch() : 0),
      mTimes(form.isForSpreadsheet ? TimeReference() : times), mResolution(resolution)
{
}

std::string CsvTime::titles() const
{
    if (!mForm.isForSpreadsheet)
        return mTimes.heading();
    const std::string times = std::string("Time [s]") + mForm.separator + "Time [h:mm:ss]";
    return mHasClock ? times + mForm.separator + "Date and time" : times;
}

char* CsvTime::write(char* pOut, uint32_t tick)
{
    const int64_t milliseconds = int64_t{tick} * mResolution;
    if (mForm.isForSpreadsheet) {
        // As a number, too: some take times for texts unless they are asked to look.
        pOut = mForm.number(pOut, writeFixed(pOut, static_cast<double>(milliseconds) / 1000, 3));
        *pOut++ = mForm.separator;
    }
    const int64_t told = mTimes.toldMilliseconds(milliseconds);
    pOut = mForm.number(pOut, writeSigned(pOut, told < 0, static_cast<uint64_t>(std::abs(told)), 3, 1));
    *pOut++ = mForm.separator;
    return mHasClock ? writeDateTime(pOut, mPowerUp + milliseconds) : pOut;
}

char* CsvTime::writeDateTime(char* pOut, int64_t milliseconds)
{
    if (const int64_t day = milliseconds / kDayMilliseconds; day != mDay) {
        mDay = day;
        mDateText = QDate(1970, 1, 1).addDays(day).toString(mForm.dateFormat).toStdString() + ' ';
    }
    pOut = std::copy(mDateText.begin(), mDateText.end(), pOut);
    pOut = mForm.number(pOut, writeTimeOfDay(pOut, milliseconds, true));
    *pOut++ = mForm.separator;
    return pOut;
}

} // namespace ZARN
