#include "trace/TraceSet.h"

#include "trace/ChannelTrace.h"

namespace ZARN {

TraceSet::TraceSet(const RecordData* pData, const Profile& profile, ENumber kind, CoordinateFilter& filter, const Wanted& wanted)
{
    filter.reset();
    for (const ProfileDevice& device : profile.data()) {
        for (const ProfileParameter& parameter : device.parameters) {
            if (!wanted(device, parameter))
                continue;
            const RecordChannel* pChannel = pData ? pData->channel(parameter.identifier()) : nullptr;
            mTraces.push_back(std::make_unique<ChannelTrace>(device.name, parameter, profile.decoder(parameter), pChannel, kind, filter));
        }
    }
}

TraceSet::Wanted TraceSet::all()
{
    return [](const ProfileDevice&, const ProfileParameter&) { return true; };
}

TraceSet::Wanted TraceSet::selected(const Profile& profile)
{
    return [&profile](const ProfileDevice&, const ProfileParameter& parameter) { return profile.isSelected(parameter.name); };
}

std::size_t TraceSet::bytes() const
{
    std::size_t bytes = 0;
    for (const auto& pTrace : mTraces)
        bytes += pTrace->bytes();
    return bytes;
}

std::unique_ptr<const Trace> TraceSet::one(const RecordData& data, const Profile& profile, const ProfileParameter& parameter, ENumber kind,
                                           CoordinateFilter& filter, double latestTime)
{
    return std::make_unique<ChannelTrace>(std::string(), parameter, profile.decoder(parameter), data.channel(parameter.identifier()), kind, filter,
                                          latestTime);
}

} // namespace ZARN
