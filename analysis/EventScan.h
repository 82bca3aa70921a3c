#pragma once

#include "analysis/EventList.h"
#include "card/record/RecordData.h"
#include "profile/Profile.h"

#include <optional>

namespace ZARN {

/// What the scans for events have in common: one parameter of one device, its samples and the list that its events go to.
class EventScan {
public:
    EventScan(Profile& profile, const ProfileDevice& device, const ProfileParameter& parameter, EventList& list)
        : mDevice(device), mParameter(parameter), mDecoder(profile.decoder(parameter)), mFilter(profile.sharedFilter()), mList(list)
    {
    }

protected:
    void addEvent(const StoredRecord& record, double textValue, int state, const QColor& colour)
    {
        if (!mSource)
            mSource = mList.addSource({mDevice.name, mParameter.name, mParameter.unit});
        Event event{record.time(), TimeKey::of(record.time()), *mSource, state, colour, {}};
        mDecoder.appendText(textValue, event.value);
        mList.add(std::move(event));
    }

    const ProfileDevice& mDevice;
    const ProfileParameter& mParameter;
    const ValueDecoder mDecoder;
    CoordinateFilter& mFilter; // the shared one: position parameters of one pass build on each other
    EventList& mList;
    std::optional<uint32_t> mSource; // entered with the first event
};

} // namespace ZARN
