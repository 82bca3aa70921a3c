#pragma once

#include "live/BusAddress.h"

#include <QByteArray>

namespace ZARN {

/// Whether an interface confirms (acknowledges) the frames that it receives. Its controller does so by itself, in every frame, unless it is
/// set to listen only; it is all that a program which never sends can do to a bus.
enum class EConfirming {
    eUnknown, ///< the system or the plugin does not tell
    eNever,   ///< set to listen only, or there is no controller
    eAlways
};

/// Asks the system how an interface is set; only that of the plugin "socketcan" can be asked, by the program ip. Takes some milliseconds,
/// at most a second.
[[nodiscard]] EConfirming confirming(const BusAddress& address);
/// @param links what "ip -details -json link show dev NAME" writes
[[nodiscard]] EConfirming confirmingOf(const QByteArray& links);

} // namespace ZARN
