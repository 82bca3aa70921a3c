#pragma once

#include "card/LoadedCard.h"

#include <QString>

namespace ZARN {

/// A cycle that is compared with the one that is shown, with the moments by which the two can be laid on each other. Never changes.
struct GhostCycle {
    GhostCycle(LoadedCard card, QString text);

    LoadedCard loaded;
    QString name;                      ///< for people
    std::vector<double> takeOffs;      ///< of its flights; seconds since its power-up
    std::optional<double> engineStart; ///< none where that is not known
};

/// When the engine of a cycle was started first.
[[nodiscard]] std::optional<double> firstEngineStart(const LoadedCard& loaded);

} // namespace ZARN
