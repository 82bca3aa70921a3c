#pragma once

#include <span>
#include <string_view>

namespace ZARN {

/// The names of the data types, in the order of their codes.
std::span<const char* const> canasTypeNames();
/// The code of a data type's name; that of "NODATA" for an unknown one.
int canasType(std::string_view name);

} // namespace ZARN
