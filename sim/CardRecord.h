#pragma once

#include <array>
#include <cstdint>

namespace ZARN {

/// Ticks of the unit's counter in a second: one every 31.25 ns.
constexpr std::uint64_t kTicksPerSecond = 32'000'000;

/// One message as the unit stores it, before it is given a byte order.
struct CardRecord {
    std::array<std::uint8_t, 8> payload{};
    std::uint8_t length = 8;    ///< stored as extra byte 0
    std::uint8_t bus = 0;       ///< stored as extra byte 1
    std::uint16_t kind = 0;
    std::uint32_t id = 0;
    std::uint16_t sequence = 0; ///< stored as word 0; counts the records of a power cycle
    std::uint16_t load = 0;     ///< stored as word 1; of the bus, in tenths of a percent
    std::uint64_t ticks = 0;    ///< since power-up
};

} // namespace ZARN
