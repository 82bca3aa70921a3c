#pragma once

#include "analysis/CycleReview.h"
#include "cli/JsonWriter.h"

namespace ZARN {

/// Writes the members of a cycle that tell its review.
void writeReview(JsonWriter& writer, const CycleReview& review);

} // namespace ZARN
