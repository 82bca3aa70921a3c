#pragma once

#include "ui/gl/GlSurface.h"

#include <QImage>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QWidget>

class QOpenGLFramebufferObject;

namespace ZARN {

/// Drawn with OpenGL into an image which the toolkit's painter puts into the window: where a program plays the graphics card, one view on
/// the card would let that program compose the whole window at each change of any part of it.
class MemorySurface : public QWidget, public GlSurface {
public:
    MemorySurface(const SurfacePainting& painting, QWidget* pParent);
    ~MemorySurface() override;

    QWidget& widget() override { return *this; }
    void requestFrame() override;
    void requestAbove() override { update(); }

protected:
    void paintEvent(QPaintEvent* pEvent) override;

private:
    bool makeCurrent();
    void drawImage(const QSize& pixels);

    QOffscreenSurface mPlace;
    QOpenGLContext mContext;
    std::unique_ptr<QOpenGLFramebufferObject> mpTarget;
    QImage mImage;
    bool mIsWanted = true;
    bool mIsBroken = false;
};

} // namespace ZARN
