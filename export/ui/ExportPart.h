#pragma once

#include "analysis/TimeSpan.h"

#include <QString>

#include <optional>

namespace ZARN {

/// What of the loaded data an export can be about.
struct ExportPart {
    QString title;                 ///< for people
    QString fileName;              ///< proposed for it
    std::optional<TimeSpan> span;  ///< none: everything
};

} // namespace ZARN
