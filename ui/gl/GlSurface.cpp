#include "ui/gl/GlSurface.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLWidget>
#include <QPainter>
#include <QPaintEvent>
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

protected:
    void initializeGL() override
    {
        connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &CardSurface::release, Qt::UniqueConnection);
        start();
    }
    void paintGL() override
    {
        if (isStarted())
            draw(size(), devicePixelRatioF());
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
            draw(size(), devicePixelRatioF());
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

void GlSurface::draw(const QSize& size, double ratio)
{
    mpCanvas->begin(size, ratio, mPainting.background);
    mPainting.paint(*mpCanvas, size, ratio);
    mpCanvas->end();
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
