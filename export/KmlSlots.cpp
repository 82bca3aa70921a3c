#include "export/KmlSlots.h"

#include "app/LastOfKey.h"

namespace ZARN {

namespace {

constexpr int64_t kMillisecondsPerDay = 86400000;

void appendTwoDigits(std::string& text, int64_t number)
{
    text += static_cast<char>('0' + number / 10);
    text += static_cast<char>('0' + number % 10);
}

} // namespace

std::string KmlGrid::timeOfDay(int slot, int interval) const
{
    const int64_t milliseconds = saturatingCast<int64_t>(seconds(slot, interval) * 1000) % kMillisecondsPerDay;
    const int64_t second = (milliseconds + kMillisecondsPerDay) % kMillisecondsPerDay / 1000;
    std::string text;
    appendTwoDigits(text, second / 3600);
    text += ':';
    appendTwoDigits(text, second / 60 % 60);
    text += ':';
    appendTwoDigits(text, second % 60);
    return text;
}

void KmlSlots::sort()
{
    if (mAscending)
        return;
    keepLastOfKey(mValues, &Value::slot);
    mAscending = true;
}

} // namespace ZARN
