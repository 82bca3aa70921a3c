#pragma once

#include <string>

namespace ZARN {

/// Gives a damaged store another name, so that the next scan makes a sound one, and takes what people typed (services, readings, notes,
/// names of aircraft, which engines are one) over into a new one, as far as it can be read: no scan brings that back.
/// @return "; ..." for people, what became of it; empty when it could not be put aside
[[nodiscard]] std::string putAside(const std::string& path);

} // namespace ZARN
