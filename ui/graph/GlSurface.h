#pragma once

#include "ui/gl/GlCanvas.h"
#include "ui/graph/GraphSurface.h"

#include <QOpenGLWidget>

namespace ZARN {

/// A graph's surface on OpenGL. Its context may go and come again, as when the window moves to another screen.
class GlSurface : public QOpenGLWidget {
public:
    /// Makes what the canvas draws through; null draws with shaders.
    using CreateDevice = std::unique_ptr<VESK::OpenGL::Device> (*)();

    GlSurface(const GraphPainting& painting, CreateDevice createDevice, QWidget* pParent);
    ~GlSurface() override;

protected:
    void initializeGL() override;
    void paintGL() override;

private:
    void release();
    void fail(const QString& reason);

    GraphPainting mPainting;
    CreateDevice mCreateDevice;
    std::unique_ptr<GlCanvas> mpCanvas;
};

} // namespace ZARN
