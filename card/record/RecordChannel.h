#pragma once

#include "app/RunningMaximum.h"
#include "card/record/RecordEntries.h"

namespace ZARN {

/// Positions from `first` up to but not including `last`.
struct PositionRange {
    std::size_t first;
    std::size_t last;
};

/// All records of one CAN identifier, with what is needed to find the record of a time.
class RecordChannel {
public:
    explicit RecordChannel(uint32_t identifier) : entries(identifier) {}

    RecordEntries entries;

    [[nodiscard]] uint32_t identifier() const { return entries.identifier(); }
    /// The newest record of a live feed is fresh until it is shown; records read from a file never are.
    [[nodiscard]] bool fresh() const { return mFresh; }
    void setFresh(bool fresh) { mFresh = fresh; }
    /// A copy of the most recent entry; a default entry when there is none.
    [[nodiscard]] RecordEntry last() const;

    /// Makes the look-ups fast once all records are there. Only channels whose times go backwards need anything stored.
    void buildTimeIndex();
    /// The position of the first entry, in stored order, whose time is at or after `time`; size() when there is none or
    /// `time` is not a number. Logarithmic, and exactly what a scan from the first entry finds; records that came after the
    /// index was built make it that scan.
    [[nodiscard]] std::size_t firstAtOrAfter(double time) const;
    /// Where, in stored order, entries may lie whose time is in [from, to]: all of them do where times ascend, else some.
    [[nodiscard]] std::vector<PositionRange> rangesIn(double from, double to) const;

private:
    struct Bounds {
        double earliest;
        double latest;
    };
    struct Index {
        RunningMaximum<uint64_t> latest; // in ticks
        std::vector<Bounds> chunkBounds; // of each chunk
    };
    [[nodiscard]] bool isIndexed() const { return mpIndex && mpIndex->latest.maxima().size() == entries.size(); }

    std::unique_ptr<Index> mpIndex; // null when the times ascend: there may be as many channels as records
    bool mFresh = false;
};

} // namespace ZARN
