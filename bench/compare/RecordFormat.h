#pragma once

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

// What the comparison programs know of a record file: a 128-byte header, then records of 28 bytes, big-endian. On purpose without a
// line of the program that they are compared with.

namespace Compare {

constexpr std::size_t kHeader = 128;
constexpr std::size_t kRecord = 28;
constexpr std::size_t kPayloadValue = 4; // where the value begins in a record
constexpr std::size_t kKind = 10;
constexpr std::size_t kIdentifier = 12;
constexpr std::size_t kWords = 16;
constexpr std::size_t kTicksHigh = 20;
constexpr std::size_t kTicksLow = 24;
constexpr double kSecondsATick = 31.25e-9;

inline uint16_t get16(const uint8_t* pBytes)
{
    uint16_t value;
    std::memcpy(&value, pBytes, sizeof value);
    return __builtin_bswap16(value);
}

inline uint32_t get32(const uint8_t* pBytes)
{
    uint32_t value;
    std::memcpy(&value, pBytes, sizeof value);
    return __builtin_bswap32(value);
}

inline void put16(uint8_t* pBytes, uint16_t value)
{
    value = __builtin_bswap16(value);
    std::memcpy(pBytes, &value, sizeof value);
}

inline void put32(uint8_t* pBytes, uint32_t value)
{
    value = __builtin_bswap32(value);
    std::memcpy(pBytes, &value, sizeof value);
}

inline double secondsOf(uint32_t high, uint32_t low)
{
    return std::fma(double(high), 134.217728, double(low) * kSecondsATick);
}

} // namespace Compare
