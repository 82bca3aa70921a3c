#pragma once

#include "card/RecordFlight.h"
#include "card/record/RecordInfo.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace ZARN {

/// A power cycle: the files that a unit wrote from one switching on to the next.
struct RecordCycle {
    QString name; ///< "Cycle N"; empty for the files before the first cycle start
    QDateTime dateTime;
    std::vector<std::reference_wrapper<const RecordInfo>> files; ///< of the container, in name order
    double endTime = 0.0;          ///< of the last file that holds a record, seconds since power-up
    std::vector<RecordFlight> flights;

    /// Whether its length is known: no file's header is damaged.
    [[nodiscard]] bool hasSoundTimes() const { return std::ranges::all_of(files, &RecordInfo::hasSoundTimes); }
};

} // namespace ZARN
