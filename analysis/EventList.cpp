#include "analysis/EventList.h"

#include <algorithm>

namespace ZARN {

uint32_t EventList::addSource(EventSource source)
{
    mSources.push_back(std::move(source));
    return static_cast<uint32_t>(mSources.size() - 1);
}

void EventList::add(Event event)
{
    if (event.value != "nan")
        mEvents.push_back(std::move(event));
}

void EventList::sortByTime()
{
    std::stable_sort(mEvents.begin(), mEvents.end(), [](const Event& a, const Event& b) { return a.time < b.time; });
}

void EventList::crop(const TimeSpan& span)
{
    std::erase_if(mEvents, [&span](const Event& event) { return !span.holds(event.time); });
}

std::string EventList::text(const Event& event) const
{
    const EventSource& from = source(event);
    return from.group + " " + from.parameter + " " + event.value + " " + from.unit;
}

std::size_t EventList::rowAt(double seconds) const
{
    const auto after = std::upper_bound(mEvents.begin(), mEvents.end(), TimeKey::of(seconds),
                                        [](TimeKey key, const Event& event) { return key < event.key; });
    return after == mEvents.begin() ? 0 : static_cast<std::size_t>(after - mEvents.begin() - 1);
}

} // namespace ZARN
