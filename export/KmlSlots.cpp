#include "export/KmlSlots.h"

#include "app/LastOfKey.h"
#include "app/TimeText.h"

namespace ZARN {

std::string KmlGrid::timeOfDay(int slot, int interval) const
{
    char text[kTimeTextSize];
    return {text, writeTimeOfDay(text, wholeMilliseconds(seconds(slot, interval)), false)};
}

void KmlSlots::sort()
{
    if (mAscending)
        return;
    keepLastOfKey(mValues, &Value::slot);
    mAscending = true;
}

} // namespace ZARN
