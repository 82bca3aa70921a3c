#include "export/KmlPlacemarks.h"

#include "card/record/TimeKernels.h"

#include <array>

namespace ZARN {

namespace {

constexpr std::size_t kRun = 512; // samples decoded at once

KmlSlots collectTexts(const RecordEntries& entries, const ValueDecoder& decoder, CoordinateFilter& filter, const KmlGrid& grid, int interval)
{
    KmlSlots slots;
    std::array<double, kRun> times{};
    std::array<double, kRun> values{};
    for (std::size_t position = 0; position < entries.size();) {
        const auto records = entries.run(position, kRun);
        recordTimes(records, times.data());
        decoder.textValues(records, values.data(), filter);
        for (std::size_t i = 0; i < records.size(); ++i)
            slots.put(grid.slot(times[i], interval), values[i]);
        position += records.size();
    }
    slots.sort();
    return slots;
}

} // namespace

bool KmlPlacemarks::collect(const RecordData& data, Profile& profile, const KmlGrid& grid, int interval, const ProgressSpan& progress)
{
    mColumns.clear();
    std::size_t devices = 0;
    CoordinateFilter filter = profile.sharedFilter(); // our own, since a receiver of progress may let views refresh
    filter.reset();
    for (const ProfileDevice& device : profile.data()) {
        for (const ProfileParameter& parameter : device.parameters) {
            const RecordChannel* pChannel = profile.isSelected(parameter.name) ? data.channel(parameter.identifier()) : nullptr;
            if (!pChannel)
                continue;
            const ValueDecoder decoder = profile.decoder(parameter);
            KmlSlots slots = collectTexts(pChannel->entries, decoder, filter, grid, interval);
            mColumns.push_back({&parameter, decoder, slots.take()});
            if (!progress.step(devices, profile.data().size()))
                return false;
        }
        ++devices;
    }
    profile.sharedFilter() = filter;
    return true;
}

} // namespace ZARN
