#pragma once

#include "card/record/RecordInfo.h"

#include <span>
#include <variant>

namespace ZARN {

/// A field of a record file's header that tells of which unit and engine the recording is: the one place
/// that knows what people call it.
struct HeaderField {
    const char* label; ///< in English
    std::variant<uint32_t RecordInfo::*, std::string RecordInfo::*> member;

    /// All of them, in the order in which they are shown.
    [[nodiscard]] static std::span<const HeaderField> all();
    /// The label in the user's language.
    [[nodiscard]] QString title() const;
    /// The value as text, as recorded.
    [[nodiscard]] std::string text(const RecordInfo& info) const;
};

} // namespace ZARN
