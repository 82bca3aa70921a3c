#pragma once

#include "profile/ProfileParameter.h"

#include <QColor>

namespace ZARN {

/// The fill of a set fault bit of a kind; white for bits of no known kind.
[[nodiscard]] inline QColor faultColour(int errorType)
{
    switch (errorType) {
    case eErrorInfo: return {150, 150, 255};
    case eErrorWarning: return {255, 200, 150};
    case eErrorFault: return {255, 150, 150};
    default: return Qt::white;
    }
}

/// The fill of a defined bit that is not set; white for bits of no known kind.
[[nodiscard]] inline QColor quietFaultColour(int errorType)
{
    return errorType >= eErrorInfo && errorType <= eErrorFault ? QColor(220, 255, 220) : QColor(Qt::white);
}

} // namespace ZARN
