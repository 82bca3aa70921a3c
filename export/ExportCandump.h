#pragma once

#include "analysis/TimeSpan.h"
#include "app/SafeFile.h"

#include <optional>

namespace ZARN {

class CardContainer;

/// Writes the loaded records, in the order of reception, as a log in can-utils' text form. Stamps are seconds since power-up or, with a
/// clock, seconds since 1970, the clock read as UTC.
class ExportCandump {
public:
    /// @param span what to write, both ends included; without one, everything.
    /// @return false, with error() set and no file left, when it cannot be written.
    bool exportData(const CardContainer& container, std::optional<TimeSpan> span, SafeFile& file);

    [[nodiscard]] const std::string& error() const { return mError; }
    /// Records left out because no frame has such an identifier: damage.
    [[nodiscard]] uint64_t leftOut() const { return mLeftOut; }

private:
    std::string mError;
    uint64_t mLeftOut = 0;
};

} // namespace ZARN
