#pragma once

#include "app/Numeric.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace ZARN {

using Payload = std::array<uint8_t, 8>; ///< the data bytes of a CAN message as recorded; multi-byte values in it are big-endian

/// Seconds of the unit's 32 MHz tick counter, given as its high and low word: high x 2^32 x 31.25 ns + low x 31.25 ns.
[[nodiscard, gnu::always_inline]] inline double recordTime(uint32_t high, uint32_t low)
{
    return std::fma(static_cast<double>(high), 134.217728, static_cast<double>(low) * 31.25e-9);
}

/// A recorded time above this is damage: no unit stays on for three weeks. In seconds.
inline constexpr double kLatestTime = 2000000.0;

/// Seconds to tenths of a second, rounded to nearest: the time key of the data table and of the event lists.
[[nodiscard]] inline uint32_t timeTenths(double seconds)
{
    return saturatingCast<uint32_t>(seconds * 10 + 0.5);
}

/// One data record as it is kept in memory: 24 bytes without loss. The identifier is that of the channel that holds it;
/// the time is one multiplication away.
struct StoredRecord {
    Payload payload;
    uint8_t extra0;
    uint8_t extra1;
    uint16_t kind;
    uint16_t word0;
    uint16_t word1;
    uint64_t ticks; ///< the tick counter's 64 bits at reception

    [[nodiscard, gnu::always_inline]] inline double time() const
    {
        return recordTime(static_cast<uint32_t>(ticks >> 32), static_cast<uint32_t>(ticks));
    }
};
static_assert(sizeof(StoredRecord) == 24);

/// One data record, given out by value.
struct RecordEntry {
    Payload payload{};
    uint8_t extra0 = 0;
    uint8_t extra1 = 0;
    uint16_t kind = 0; ///< 0 and 1 select a pseudo-channel
    uint32_t id = 0;   ///< CAN identifier
    uint16_t word0 = 0;
    uint16_t word1 = 0;
    uint32_t timeHigh = 0;
    uint32_t timeLow = 0;
    double time = 0.0;       ///< seconds since the unit's power-up
    uint32_t timeTenths = 0; ///< the time in tenths of a second, rounded to nearest
    bool flag = false;       ///< marks the newest value of a live feed as fresh

    RecordEntry() = default;
    RecordEntry(const StoredRecord& record, uint32_t identifier)
        : payload(record.payload), extra0(record.extra0), extra1(record.extra1), kind(record.kind), id(identifier), word0(record.word0),
          word1(record.word1), timeHigh(static_cast<uint32_t>(record.ticks >> 32)), timeLow(static_cast<uint32_t>(record.ticks)),
          time(record.time()), timeTenths(ZARN::timeTenths(time))
    {
    }

    [[nodiscard]] StoredRecord stored() const
    {
        return {payload, extra0, extra1, kind, word0, word1, static_cast<uint64_t>(timeHigh) << 32 | timeLow};
    }
};

} // namespace ZARN
