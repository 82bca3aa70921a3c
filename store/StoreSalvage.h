#pragma once

#include <cstdint>
#include <string>

namespace ZARN {

/// The path of what stands in place of a card for recordings that were lost; its problems name the engines of which some may be.
inline const std::string kLossPath = "(damaged store)";

/// What of a damaged store could be taken over into a new one.
struct StoreSalvage {
    int64_t cycles = 0;
    int64_t lostCycles = 0; ///< of these, those of which hardly more is known than that they were
    int64_t flights = 0;
    int64_t notes = 0;
    int64_t services = 0;
    int64_t readings = 0; ///< typed ones
    bool isWhole = true;  ///< nothing was left behind
    bool hasAllCycles = true;
    std::string error;    ///< why the new one could not be made; else empty

    [[nodiscard]] bool isEmpty() const { return cycles + notes + services + readings == 0; }
};

/// Makes a new store of all that can be read of a damaged one, which stays as it is. Cycles are worked out anew when their card is met again,
/// for some of what belongs to them may be lost. Nothing is taken over whose cycle, flight or incident is lost.
[[nodiscard]] StoreSalvage salvageStore(const std::string& damaged, const std::string& fresh);

} // namespace ZARN
