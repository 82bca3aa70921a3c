#pragma once

#include "card/record/RecordEntry.h"

#include <vector>

namespace ZARN {

/// One frame from a bus, as it is kept and recorded.
struct LiveRecord {
    uint32_t identifier = 0;
    StoredRecord record{};
};

/// In the order of reception; the times rise.
using LiveRecords = std::vector<LiveRecord>;

/// What came over a bus since its link was opened.
struct LiveCounts {
    uint64_t frames = 0; ///< data frames, all of which are handed on
    uint64_t remote = 0; ///< frames that ask for data and carry none
    uint64_t errors = 0; ///< what the interface says about the bus, without the losses
    uint64_t losses = 0; ///< how often the interface said that it could not keep up
    uint64_t fd = 0;     ///< frames of CAN FD, for which a record has no room
    uint64_t bits = 0;   ///< of all these on the wire, without stuffing
};

} // namespace ZARN
