#include "card/PowerUp.h"

#include "app/Numeric.h"
#include "card/CardContainer.h"

#include <algorithm>

namespace ZARN {

namespace {

QDateTime powerUp(const RecordInfo& first)
{
    return first.startsCycle ? first.dateTime : first.dateTime.addMSecs(-saturatingCast<int64_t>(first.startTime * 1000));
}

} // namespace

QDateTime PowerUp::of(const RecordCycle& cycle)
{
    return cycle.files.empty() ? cycle.dateTime : powerUp(cycle.files.front());
}

QDateTime PowerUp::ofLoaded(const CardContainer& container)
{
    if (const RecordCycle* pCycle = container.loadedCycle())
        return of(*pCycle);
    // The container tells date and beginning of the first file that it loaded.
    const auto& files = container.recordFiles();
    const auto first = std::ranges::find_if(files, [&container](const auto& file) {
        return file.second.dateTime == container.dateTime() && file.second.startTime == container.startTime();
    });
    return first == files.end() ? container.dateTime() : powerUp(first->second);
}

} // namespace ZARN
