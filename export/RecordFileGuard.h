#pragma once

#include "card/CardContainer.h"

namespace ZARN {

/// Whether a path leads to a record file of the card, by whatever name or link: an export would put itself in place of the recording.
/// @param path as the system takes it.
[[nodiscard]] bool isRecordFileOf(const CardContainer& card, const std::string& path);

} // namespace ZARN
