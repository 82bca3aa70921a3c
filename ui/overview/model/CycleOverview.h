#pragma once

#include "analysis/CycleReview.h"
#include "card/CycleNote.h"
#include "project/TimeReference.h"

#include <QDateTime>
#include <QStringList>

namespace ZARN {

/// A power cycle as the overview tells it: what it is, and what its review found. A plain value that refers to nothing.
struct CycleOverview {
    uint32_t number = 0;
    QDateTime dateTime;     ///< of the power-up; invalid without a clock
    double startTime = 0.0; ///< seconds since power-up
    double endTime = 0.0;
    std::vector<RecordFlight> flights;
    CycleReview review;
    QStringList damages;    ///< what of its files could not be read, and where their dates are wrong, for people
    bool isPartial = false; ///< the system kept some of it from being read: nothing can be called all right
    std::vector<CycleNote> notes; ///< what somebody wrote about it
    QStringList unusual;    ///< figures that are not as they used to be for this engine, for people
    TimeReference times;    ///< how its times are told
    QString problem;        ///< why there is no review, for people; else empty

    [[nodiscard]] EVerdict verdict() const
    {
        return !problem.isEmpty() || (isPartial && review.verdict == EVerdict::eOk) ? EVerdict::eUnknown : review.verdict;
    }
};

} // namespace ZARN
