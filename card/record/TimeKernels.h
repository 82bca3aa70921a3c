#pragma once

#include "card/record/RecordEntry.h"

#include <span>

namespace ZARN {

/// How many records ahead of the one worked on are fetched from memory by loops over runs of records.
inline constexpr std::size_t kFetchAhead = 192;

/// The times, in seconds, of a run of records; pOut takes as many numbers.
void recordTimes(std::span<const StoredRecord> records, double* pOut);

} // namespace ZARN
