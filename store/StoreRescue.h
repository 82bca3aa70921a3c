#pragma once

#include <string>

namespace ZARN {

/// Takes over what people typed (services, readings, notes) from a damaged store into a new one, as far as it can be read: no scan brings that
/// back. @return how many rows; without any no new store is made
std::size_t rescueTyped(const std::string& damaged, const std::string& fresh);

} // namespace ZARN
