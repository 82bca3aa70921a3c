#include "analysis/EventList.h"

#include "profile/Threshold.h"

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

std::vector<const Event*> EventList::weightiest(std::size_t most) const
{
    std::vector<const Event*> events;
    for (const Event& event : mEvents)
        events.push_back(&event);
    if (events.size() > most) {
        std::ranges::stable_sort(events, {}, [this](const Event* pEvent) {
            return std::pair(source(*pEvent).isComputed, pEvent->state != eThresholdLimit);
        });
        events.resize(most);
        std::ranges::sort(events); // they lie side by side, by time
    }
    return events;
}

std::string EventList::text(const Event& event) const
{
    const EventSource& from = source(event);
    return from.group + " " + from.parameter + " " + event.value + " " + from.unit;
}

std::optional<std::size_t> EventList::rowAt(double seconds) const
{
    const auto after = std::upper_bound(mEvents.begin(), mEvents.end(), TimeKey::of(seconds),
                                        [](TimeKey key, const Event& event) { return key < event.key; });
    if (after == mEvents.begin())
        return {};
    return static_cast<std::size_t>(after - mEvents.begin() - 1);
}

} // namespace ZARN
