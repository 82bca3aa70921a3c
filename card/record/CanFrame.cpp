#include "card/record/CanFrame.h"

#include <algorithm>
#include <array>

namespace ZARN {

namespace {

constexpr std::size_t kHeaderBytes = 4; // node, type, service and message code
constexpr std::size_t kTypeByte = 1;
// Bytes of data by the code of the type: from NODATA (0) to DOUBLEL (31). Codes beyond are the users', who fill what they please.
constexpr std::array<uint8_t, 32> kTypeBytes{0, 4, 4, 4, 4, 4, 2, 2, 2, 1, 1, 1, 4, 4, 4, 4, 4, 4, 2, 2, 2, 4, 4, 1, 2, 4, 3, 3, 3, 3, 4, 4};
constexpr std::size_t kMostTypeBytes = 4;

} // namespace

uint32_t CanFrame::recordIdentifier() const
{
    const uint8_t type = payload[kTypeByte];
    const bool isWhole = length >= kHeaderBytes + (type < kTypeBytes.size() ? kTypeBytes[type] : kMostTypeBytes);
    return identifier | (isExtended && identifier <= kHighestStandard ? kExtendedFlag : 0) | (isWhole ? 0 : kShortFlag);
}

StoredRecord CanFrame::record(uint64_t ticks) const
{
    return {payload, static_cast<uint8_t>(payload.size() - length), 0, kFrameKind, 0, 0, ticks};
}

std::optional<CanFrame> CanFrame::of(uint32_t recordIdentifier, const StoredRecord& record)
{
    const uint32_t flags = record.kind == kFrameKind ? recordIdentifier & (kExtendedFlag | kShortFlag) : 0;
    const uint32_t identifier = recordIdentifier - flags;
    const std::size_t missing = flags & kShortFlag ? std::min<std::size_t>(record.extra0, record.payload.size()) : 0;
    if (identifier > kHighestIdentifier)
        return std::nullopt;
    return CanFrame{identifier, flags >= kExtendedFlag || identifier > kHighestStandard, record.payload, record.payload.size() - missing};
}

} // namespace ZARN
