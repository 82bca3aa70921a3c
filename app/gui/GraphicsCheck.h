#pragma once

#include <QString>
#include <QSurfaceFormat>

namespace ZARN {

/// Whether the machine can draw what the graph and the map need. Asked once at start, so that a machine that cannot says so
/// instead of showing black areas.
class GraphicsCheck {
public:
    /// OpenGL 3.3 core with debug context, 24 bits of depth and 8 of stencil.
    static QSurfaceFormat surfaceFormat();
    /// Why OpenGL cannot be used, for people; empty when it can. Needs the application object.
    static QString problem();
};

} // namespace ZARN
