#pragma once

#include "card/NormalBand.h"
#include "store/CardFacts.h"
#include "store/StoreReader.h"

#include <span>

namespace ZARN {

/// The bands of the flights of a cycle: each of the latest 30 flights of its engine before it in a store, none before fewer than 10. Every
/// flight counts alike, however many samples it has.
[[nodiscard]] std::vector<NormalBand> normalBands(StoreReader& store, const CycleHead& cycle, std::span<const RecordFlight> flights);

/// What lies so far up in the samples of all points together, told from the least, the greatest and three percentiles of each, straight
/// between them. @param points at least one  @param share from 0 to 1
[[nodiscard]] double jointPercentile(std::span<const TrendPoint> points, double share);

} // namespace ZARN
