#pragma once

#include <QSize>

#include <functional>

class QWidget;

namespace ZARN {

class Canvas;

/// What a graph widget is painted on: it fills the widget, takes no events, and asks for the picture whenever the toolkit wants one.
struct GraphPainting {
    std::function<void(Canvas& canvas, const QSize& size, double ratio)> paint; ///< the canvas is ready and empty
    std::function<void()> failed; ///< this surface cannot draw; not called from within its painting
};

/// Surfaces of OpenGL with shaders, of fixed-function OpenGL, and of the toolkit's own painter, which always works.
[[nodiscard]] QWidget* createShaderSurface(const GraphPainting& painting, QWidget* pParent);
[[nodiscard]] QWidget* createFixedSurface(const GraphPainting& painting, QWidget* pParent);
[[nodiscard]] QWidget* createPainterSurface(const GraphPainting& painting, QWidget* pParent);

} // namespace ZARN
