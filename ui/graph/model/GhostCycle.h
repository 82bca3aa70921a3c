#pragma once

#include "analysis/TimeSpan.h"
#include "card/LoadedCard.h"

#include <QString>

#include <limits>

namespace ZARN {

/// A cycle that is compared with the one that is shown, with the moments by which the two can be laid on each other. Never changes.
struct GhostCycle {
    /// All of the cycle.
    GhostCycle(LoadedCard card, QString text);
    /// One of its flights, counted from 1, and nothing before or after it.
    GhostCycle(LoadedCard card, QString text, int flight);

    static constexpr TimeSpan kAll{-std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};

    LoadedCard loaded;
    QString name;                      ///< for people
    TimeSpan part = kAll;              ///< what is shown of its times
    std::vector<double> takeOffs;      ///< of its flights; seconds since its power-up
    std::optional<double> engineStart; ///< none where that is not known
};

/// When the engine of a cycle was started first.
[[nodiscard]] std::optional<double> firstEngineStart(const LoadedCard& loaded);

} // namespace ZARN
