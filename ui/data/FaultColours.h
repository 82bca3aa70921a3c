#pragma once

#include "profile/ProfileParameter.h"
#include "ui/canvas/Palette.h"

namespace ZARN {

/// The fill of a set fault bit of a kind; plain for bits of no known kind.
[[nodiscard]] inline QColor faultColour(int errorType)
{
    const Palette::Faults& colours = Palette::screen().faults;
    switch (errorType) {
    case eErrorInfo: return colours.info;
    case eErrorWarning: return colours.warning;
    case eErrorFault: return colours.fault;
    default: return colours.none;
    }
}

/// The fill of a defined bit that is not set; plain for bits of no known kind.
[[nodiscard]] inline QColor quietFaultColour(int errorType)
{
    const Palette::Faults& colours = Palette::screen().faults;
    return errorType >= eErrorInfo && errorType <= eErrorFault ? colours.quiet : colours.none;
}

} // namespace ZARN
