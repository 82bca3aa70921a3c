#pragma once

#include "card/record/CanFrame.h"

#include <string_view>

namespace ZARN {

/// One line of a log in can-utils' text form: `(1699999999.123456) can0 123#1122334455667788`, with what programs that write the same
/// form make of it. It comes from outside: whatever it holds, it is a frame or none.
struct CandumpLine {
    enum class EKind {
        eNone,   ///< no such line
        eFrame,  ///< a frame of up to 8 data bytes
        eRemote, ///< asks for a frame, carries no data
        eError,  ///< what the interface says about the bus
        eFd      ///< a frame of CAN FD: more data than a record has room for
    };

    EKind kind = EKind::eNone;
    uint64_t nanoseconds = 0;   ///< the stamp as it stands
    std::string_view device;    ///< the name of the interface, a part of the line
    CanFrame frame;

    /// @param text without its line break.
    [[nodiscard]] static CandumpLine parse(std::string_view text);
    [[nodiscard]] static bool isBlank(std::string_view text) { return text.find_first_not_of(" \t\r") == std::string_view::npos; }
};

} // namespace ZARN
