#pragma once

#include <QColor>

namespace VESK::OpenGL {

/// What all lines of a primitive have in common. Widths and dashes are in pixels, whatever the matrix scales.
struct LineStyle {
    QColor colour = Qt::white;
    double width = 1.0;
    bool smooth = false;
    double dash = 0.0; ///< length of dashes and gaps; 0 is a solid line
};

} // namespace VESK::OpenGL
