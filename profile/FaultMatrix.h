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
    static constexpr int kBits = 32;
    static constexpr int kFirstByte = 4; ///< of a message's eight; the most significant

    int id = 0;
    std::string name;
    std::map<int, FaultBit> bits; ///< by bit number, 0 the least significant; when two parameters claim one the later keeps it

    /// The word in which the bits are set whose faults the test accepts.
    template <typename Test> [[nodiscard]] uint32_t mask(Test test) const
    {
        uint32_t word = 0;
        for (const auto& [bit, fault] : bits)
            word |= bit >= 0 && bit < kBits && test(fault) ? 1U << bit : 0U;
        return word;
    }
};

} // namespace ZARN
