#pragma once

#include "app/gui/TextSize.h"

#include <QScreen>
#include <QWidget>

namespace ZARN {

/// The size of a window that is opened for the first time: larger with larger texts, and never larger than the screen.
/// @param usual with texts of the usual size
[[nodiscard]] inline QSize firstSize(QWidget& window, const QSize& usual)
{
    constexpr QSize kFrame(4, 40); // what the system puts around the window
    window.ensurePolished();
    return QSize(grownWithText(window, usual.width()), grownWithText(window, usual.height()))
        .boundedTo(window.screen()->availableGeometry().size() - kFrame);
}

} // namespace ZARN
