#pragma once

#include "card/RecordCycle.h"
#include "store/UnusualFigure.h"

namespace ZARN {

/// A cycle of a card and what the review of it found. Refers to the container.
struct ReviewedCycle {
    uint32_t number = 0;
    const RecordCycle* pCycle = nullptr;
    double startTime = 0.0; ///< of what was loaded, in seconds since power-up
    double endTime = 0.0;
    bool isEmpty = false; ///< no record was there
    CycleReview review;
    std::vector<UnusualFigure> unusual; ///< where there is a store to compare with
};

/// A cycle for people, at most a screen: verdict, what it took, its incidents with the worst first. @param context by which it was read
[[nodiscard]] std::string summaryText(const ReviewedCycle& reviewed, const DecodingContext& context);

} // namespace ZARN
