#pragma once

#include <cstdint>

namespace ZARN {

// Bounds of a CAN frame's identifier.
inline constexpr uint32_t kHighestStandard = 0x7FF;
inline constexpr uint32_t kHighestIdentifier = 0x1FFFFFFF;

/// The kind of a record made of a frame from a bus or its log: one that belongs to no pseudo-channel.
inline constexpr uint16_t kFrameKind = 2;

} // namespace ZARN
