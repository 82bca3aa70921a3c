#pragma once

#include "ui/gl/GlSurface.h"

#include <QOpenGLWidget>

namespace ZARN {

/// Composed by the graphics card with all else of the window.
class CardSurface : public QOpenGLWidget, public GlSurface {
public:
    CardSurface(const SurfacePainting& painting, bool isFixedFunction, QWidget* pParent);
    ~CardSurface() override;

    QWidget& widget() override { return *this; }
    void requestFrame() override { update(); }
    void requestAbove() override { update(); }

protected:
    void initializeGL() override;
    void paintGL() override;

private:
    void release();
};

} // namespace ZARN
