#pragma once

#include <QString>
#include <QSurfaceFormat>

namespace ZARN {

/// Whether the machine can draw what the graph and the map need. Asked at start, so that a machine that cannot says so
/// instead of showing black areas; looked up once, for a machine does not change its mind.
class GraphicsCheck {
public:
    /// OpenGL 3.3 core with debug context, 24 bits of depth and 8 of stencil.
    static QSurfaceFormat surfaceFormat();
    /// Why OpenGL cannot be used, for people; empty when it can. Needs the application object.
    static QString problem();
    /// Whether a program plays the graphics card, so that what can be drawn without one is drawn faster by ourselves. The environment
    /// variable ZARN_GRAPHICS decides when it is "card" or "software": a way out for drivers that say the wrong thing of themselves.
    static bool isSoftware();
};

} // namespace ZARN
