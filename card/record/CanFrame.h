#pragma once

#include "card/record/RecordEntry.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace ZARN {

// Bounds of a CAN frame's identifier.
inline constexpr uint32_t kHighestStandard = 0x7FF;
inline constexpr uint32_t kHighestIdentifier = 0x1FFFFFFF;

// Flags of the numbers under which frames are kept that no parameter may read: identifiers of profiles and pseudo-channels have none.
inline constexpr uint32_t kExtendedFlag = 0x80000000; ///< a frame of 29 bits whose identifier is a standard one's number, too
inline constexpr uint32_t kShortFlag = 0x40000000;    ///< a frame without all the data that it tells of

/// The kind of a record made of a frame from a bus or its log: one that belongs to no pseudo-channel.
inline constexpr uint16_t kFrameKind = 2;

/// A frame as a bus carries it.
struct CanFrame {
    uint32_t identifier = 0;
    bool isExtended = false; ///< 29 bits
    Payload payload{};       ///< what the frame does not fill is 0
    std::size_t length = 0;  ///< the bytes that it fills

    /// Its identifier, or with a flag the number that keeps it apart: the 0 that stand for data that never came would pass for a value.
    /// Of a CANaerospace message the header and what the type in it takes must be there.
    [[nodiscard]] uint32_t recordIdentifier() const;
    [[nodiscard]] StoredRecord record(uint64_t ticks) const;
    /// What a record was made of; nothing where no frame can have been that.
    [[nodiscard]] static std::optional<CanFrame> of(uint32_t recordIdentifier, const StoredRecord& record);
};

} // namespace ZARN
