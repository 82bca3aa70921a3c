#pragma once

#include "profile/ProfileParameter.h"

#include <map>

namespace ZARN {

/// One defined bit of an error matrix.
struct FaultBit {
    std::string name;
    std::string description; ///< path of the parameter that defines it
    int errorType = eErrorNone;
    std::string zarnDataType; ///< key of that parameter
};

/// A 32-bit word of fault bits that a unit sends under one CAN identifier.
struct FaultMatrix {
    int id = 0;
    std::string name;
    std::map<int, FaultBit> bits; ///< by bit number, 0 the least significant; when two parameters claim one the later keeps it
};

} // namespace ZARN
