#include "ui/gl/GlSurface.h"

#include "ui/canvas/RasterCanvas.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLWidget>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>

namespace ZARN {

namespace {

class CardSurface : public QOpenGLWidget, public GlSurface {
public:
    CardSurface(const GlPainting& painting, CreateDevice createDevice, QWidget* pParent)
        : QOpenGLWidget(pParent), GlSurface(painting, createDevice)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    ~CardSurface() override
    {
        release();
        if (context())
            disconnect(context(), nullptr, this, nullptr); // it outlives this part of the object
    }

    QWidget& widget() override { return *this; }
    void requestFrame() override { update(); }
    void requestAbove() override { update(); }

protected:
    void initializeGL() override
    {
        connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &CardSurface::release, Qt::UniqueConnection);
        start();
    }
    void paintGL() override
    {
        if (isStarted())
            draw(size(), devicePixelRatioF(), ELayers::eAll);
    }

private:
    void release()
    {
        if (!isStarted())
            return;
        makeCurrent();
        finish();
        doneCurrent();
    }
};

class MemorySurface : public QWidget, public GlSurface {
public:
    MemorySurface(const GlPainting& painting, QWidget* pParent) : QWidget(pParent), GlSurface(painting)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_OpaquePaintEvent);
    }
    ~MemorySurface() override
    {
        if (isStarted() && mContext.makeCurrent(&mPlace)) {
            finish();
            mpTarget.reset();
            mContext.doneCurrent();
        }
    }

    QWidget& widget() override { return *this; }
    void requestFrame() override
    {
        mIsWanted = true;
        update();
    }
    void requestAbove() override { update(); }

protected:
    void paintEvent(QPaintEvent* pEvent) override
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

private:
    bool makeCurrent()
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
    void drawImage(const QSize& pixels)
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

    QOffscreenSurface mPlace;
    QOpenGLContext mContext;
    std::unique_ptr<QOpenGLFramebufferObject> mpTarget;
    QImage mImage;
    bool mIsWanted = true;
    bool mIsBroken = false;
};

} // namespace

GlSurface* GlSurface::createOnCard(const GlPainting& painting, CreateDevice createDevice, QWidget* pParent)
{
    return new CardSurface(painting, createDevice, pParent);
}

GlSurface* GlSurface::createInMemory(const GlPainting& painting, QWidget* pParent)
{
    return new MemorySurface(painting, pParent);
}

bool GlSurface::start()
{
    mpCanvas = std::make_unique<GlCanvas>(mCreateDevice ? mCreateDevice() : nullptr);
    if (mpCanvas->init())
        return true;
    const QString reason = mpCanvas->error();
    mpCanvas.reset();
    fail(reason);
    return false;
}

void GlSurface::draw(const QSize& size, double ratio, ELayers layers)
{
    mpCanvas->begin(size, ratio, mPainting.background);
    mPainting.paint(*mpCanvas, size, ratio);
    if (layers == ELayers::eAll)
        drawAbove(*mpCanvas);
    mpCanvas->end();
}

void GlSurface::drawAbove(Canvas& canvas) const
{
    if (mPainting.paintAbove)
        mPainting.paintAbove(canvas);
}

void GlSurface::finish()
{
    if (mPainting.release)
        mPainting.release();
    mpCanvas.reset();
}

void GlSurface::fail(const QString& reason)
{
    // The surface may be about to be replaced, which must not happen while it paints.
    QTimer::singleShot(0, &widget(), [failed = mPainting.failed, reason] { failed(reason); });
}

} // namespace ZARN
