#pragma once

#include "card/record/RecordEntry.h"

#include <span>

namespace ZARN {

/// The times, in seconds, of a run of records; pOut takes as many numbers.
void recordTimes(std::span<const StoredRecord> records, double* pOut);

} // namespace ZARN
