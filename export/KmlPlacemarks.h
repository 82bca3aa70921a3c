#pragma once

#include "export/KmlSlots.h"
#include "export/ProgressSpan.h"
#include "trace/TraceSet.h"

namespace ZARN {

/// The values of the selected parameters at regular intervals: in each slot of `interval` path slots, of each parameter the text of
/// its last sample there. Refers to the record.
class KmlPlacemarks {
public:
    /// Decodes the samples of the selected parameters in the profile's order.
    /// @return false when the user cancels.
    bool collect(const RecordData& data, const DecodingContext& context, const Selection& selection, const KmlGrid& grid, int interval,
                 const ProgressSpan& progress);
    void clear()
    {
        mColumns.clear();
        mTraces = {};
    }

    /// Calls `visit` with every slot in which a parameter has a sample, in ascending order, until it returns false; forEachText() then
    /// tells of that slot.
    template <typename Visitor> void forEachSlot(Visitor visit);
    /// Calls `visit` with trace and display text of every parameter that has a sample in the current slot, in the profile's order.
    template <typename Visitor> void forEachText(Visitor visit) const;

    /// How many texts there are, and how many of them the visits of forEachSlot() have passed.
    [[nodiscard]] uint64_t textCount() const { return sum([](const Column& column) { return column.values.size(); }); }
    [[nodiscard]] uint64_t textsDone() const { return sum([](const Column& column) { return column.next; }); }

private:
    struct Column {
        const Trace* pTrace;
        std::vector<KmlSlots::Value> values; // numbers to make texts of
        std::size_t next = 0;

        [[nodiscard]] bool isAt(int slot) const { return next < values.size() && values[next].slot == slot; }
    };

    template <typename Number> [[nodiscard]] uint64_t sum(Number number) const
    {
        uint64_t total = 0;
        for (const Column& column : mColumns)
            total += number(column);
        return total;
    }

    TraceSet mTraces;
    std::vector<Column> mColumns;
    int mSlot = 0; // the current one
};

template <typename Visitor> void KmlPlacemarks::forEachSlot(Visitor visit)
{
    for (Column& column : mColumns)
        column.next = 0;
    while (true) {
        const Column* pFirst = nullptr;
        for (const Column& column : mColumns) {
            if (column.next < column.values.size() && (!pFirst || column.values[column.next].slot < pFirst->values[pFirst->next].slot))
                pFirst = &column;
        }
        if (!pFirst)
            return;
        mSlot = pFirst->values[pFirst->next].slot;
        if (!visit(mSlot))
            return;
        for (Column& column : mColumns)
            column.next += column.isAt(mSlot);
    }
}

template <typename Visitor> void KmlPlacemarks::forEachText(Visitor visit) const
{
    std::string text;
    for (const Column& column : mColumns) {
        if (!column.isAt(mSlot))
            continue;
        text.clear();
        column.pTrace->decoder().appendText(column.values[column.next].value, text);
        visit(*column.pTrace, text);
    }
}

} // namespace ZARN
