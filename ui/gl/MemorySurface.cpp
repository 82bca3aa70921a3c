#include "ui/gl/MemorySurface.h"

#include "ui/canvas/RasterCanvas.h"

#include <QOpenGLFramebufferObject>
#include <QPaintEvent>
#include <QPainter>

namespace ZARN {

MemorySurface::MemorySurface(const SurfacePainting& painting, QWidget* pParent) : QWidget(pParent), GlSurface(painting)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

MemorySurface::~MemorySurface()
{
    if (isStarted() && mContext.makeCurrent(&mPlace)) {
        finish();
        mpTarget.reset();
        mContext.doneCurrent();
    }
}

void MemorySurface::requestFrame()
{
    mIsWanted = true;
    update();
}

void MemorySurface::paintEvent(QPaintEvent* pEvent)
{
    const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
    if ((mIsWanted || mImage.size() != pixels) && !pixels.isEmpty())
        drawImage(pixels);
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    if (mImage.isNull()) {
        painter.fillRect(pEvent->rect(), Qt::black);
        return;
    }
    mImage.setDevicePixelRatio(devicePixelRatioF());
    painter.drawImage(QPointF(), mImage);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    RasterCanvas canvas(painter);
    drawAbove(canvas);
}

bool MemorySurface::makeCurrent()
{
    if (!mContext.isValid()) {
        mPlace.setFormat(QSurfaceFormat::defaultFormat());
        mPlace.create();
        mContext.setFormat(QSurfaceFormat::defaultFormat());
        if (!mContext.create())
            return false;
    }
    return mContext.makeCurrent(&mPlace);
}

void MemorySurface::drawImage(const QSize& pixels)
{
    mIsWanted = false;
    if (mIsBroken)
        return;
    mIsBroken = !makeCurrent();
    if (mIsBroken)
        return fail(QStringLiteral("no OpenGL context"));
    mIsBroken = !isStarted() && !start();
    if (!mIsBroken) {
        if (!mpTarget || mpTarget->size() != pixels)
            mpTarget = std::make_unique<QOpenGLFramebufferObject>(pixels, QOpenGLFramebufferObject::CombinedDepthStencil);
        mpTarget->bind();
        draw(size(), devicePixelRatioF(), ELayers::eGround);
        mImage = mpTarget->toImage().convertToFormat(QImage::Format_RGB32);
    }
    mContext.doneCurrent();
}

} // namespace ZARN
