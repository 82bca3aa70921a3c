#include "trace/TraceSet.h"

#include "trace/ChannelTrace.h"
#include "trace/ComputedChannel.h"

namespace ZARN {

TraceSet::TraceSet(const RecordData* pData, const DecodingContext& context, ENumber kind, const Wanted& wanted, EFixes fixes)
{
    CoordinateFilter filter;
    for (const auto& [device, parameter] : context.model().parameters()) {
        if (!wanted(device, parameter))
            continue;
        auto pChannel = pData ? channelOf(*pData, context, parameter) : nullptr;
        mTraces.push_back(std::make_unique<ChannelTrace>(device.name, parameter, context, std::move(pChannel), kind,
                                                         fixes == EFixes::eInPass ? &filter : nullptr));
    }
}

TraceSet::Wanted TraceSet::all()
{
    return [](const ProfileDevice&, const ProfileParameter&) { return true; };
}

TraceSet::Wanted TraceSet::selected(const Selection& selection)
{
    return [&selection](const ProfileDevice&, const ProfileParameter& parameter) { return selection.contains(parameter.name); };
}

std::size_t TraceSet::bytes() const
{
    std::size_t bytes = 0;
    for (const auto& pTrace : mTraces)
        bytes += pTrace->bytes();
    return bytes;
}

std::unique_ptr<const Trace> TraceSet::one(const RecordData& data, const DecodingContext& context, const ProfileParameter& parameter,
                                           ENumber kind)
{
    return std::make_unique<ChannelTrace>(std::string(), parameter, context, channelOf(data, context, parameter), kind, nullptr);
}

std::unique_ptr<const Trace> TraceSet::one(const RecordData& data, const DecodingContext& context, const ProfileParameter& parameter,
                                           ENumber kind, CoordinateFilter& filter, double latestTime)
{
    return std::make_unique<ChannelTrace>(std::string(), parameter, context, channelOf(data, context, parameter), kind, &filter,
                                          latestTime);
}

} // namespace ZARN
