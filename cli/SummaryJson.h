#pragma once

#include "cli/JsonWriter.h"
#include "store/UnusualFigure.h"

namespace ZARN {

/// Writes the members of a cycle that tell its review.
/// @param unusual what earlier flights of the engine tell of it
void writeReview(JsonWriter& writer, const CycleReview& review, const std::vector<UnusualFigure>& unusual);
/// Writes the members that tell how a figure compares with those before it.
void writeJudgement(JsonWriter& writer, const TrendJudgement& judgement);

} // namespace ZARN
