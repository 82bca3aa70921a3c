#pragma once

#include "analysis/EventList.h"
#include "trace/Trace.h"

#include <optional>

namespace ZARN {

/// What the scans for events have in common: a trace of the kind eText, and the list that its events go to.
class EventScan {
public:
    EventScan(const Trace& trace, EventList& list) : mTrace(trace), mList(list) {}

protected:
    void addEvent(double time, double textNumber, int state, const QColor& colour)
    {
        if (!mSource)
            mSource = mList.addSource({mTrace.group(), mTrace.name(), mTrace.unit(), mTrace.parameter().isComputed()});
        Event event{time, TimeKey::of(time), *mSource, state, colour, {}};
        mTrace.decoder().appendText(textNumber, event.value);
        mList.add(std::move(event));
    }

    const Trace& mTrace;

private:
    EventList& mList;
    std::optional<uint32_t> mSource; // entered with the first event
};

} // namespace ZARN
