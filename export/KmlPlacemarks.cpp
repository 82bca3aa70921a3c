#include "export/KmlPlacemarks.h"

namespace ZARN {

namespace {

KmlSlots slotsOf(const Trace& trace, const KmlGrid& grid, int interval)
{
    KmlSlots slots;
    trace.forEachSample([&](double time, double number) { slots.put(grid.slot(time, interval), number); });
    slots.sort();
    return slots;
}

} // namespace

bool KmlPlacemarks::collect(const RecordData& data, const DecodingContext& context, const Selection& selection, const KmlGrid& grid, int interval,
                            const ProgressSpan& progress)
{
    clear();
    mTraces = TraceSet(&data, context, ENumber::eText, TraceSet::selected(selection));
    for (std::size_t i = 0; i < mTraces.size(); ++i) {
        if (!mTraces[i].empty())
            mColumns.push_back({&mTraces[i], slotsOf(mTraces[i], grid, interval).take()});
        if (!progress.step(i + 1, mTraces.size()))
            return false;
    }
    return true;
}

} // namespace ZARN
