#include "ui/graph/GlSurface.h"

#include "vesk/gl/FixedDevice.h"

#include <QOpenGLContext>
#include <QTimer>

namespace ZARN {

GlSurface::GlSurface(const GraphPainting& painting, CreateDevice createDevice, QWidget* pParent)
    : QOpenGLWidget(pParent), mPainting(painting), mCreateDevice(createDevice)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

GlSurface::~GlSurface()
{
    release();
}

void GlSurface::release()
{
    if (!mpCanvas)
        return;
    makeCurrent();
    mpCanvas.reset();
    doneCurrent();
}

void GlSurface::fail(const QString& reason)
{
    // The surface is about to be replaced, which must not happen while it paints.
    QTimer::singleShot(0, this, [this, reason] { mPainting.failed(reason); });
}

void GlSurface::initializeGL()
{
    mpCanvas = std::make_unique<GlCanvas>(mCreateDevice ? mCreateDevice() : nullptr);
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &GlSurface::release);
    if (mpCanvas->init())
        return;
    const QString reason = mpCanvas->error();
    mpCanvas.reset();
    fail(reason);
}

void GlSurface::paintGL()
{
    if (!mpCanvas)
        return;
    mpCanvas->begin(size(), devicePixelRatioF(), Qt::black);
    mPainting.paint(*mpCanvas, size(), devicePixelRatioF());
    mpCanvas->end();
}

QWidget* createShaderSurface(const GraphPainting& painting, QWidget* pParent)
{
    return new GlSurface(painting, nullptr, pParent);
}

QWidget* createFixedSurface(const GraphPainting& painting, QWidget* pParent)
{
    const auto createDevice = []() -> std::unique_ptr<VESK::OpenGL::Device> { return std::make_unique<VESK::OpenGL::FixedDevice>(); };
    auto* pSurface = new GlSurface(painting, createDevice, pParent);
    QSurfaceFormat format = pSurface->format();
    format.setVersion(2, 1);
    format.setProfile(QSurfaceFormat::CompatibilityProfile);
    pSurface->setFormat(format);
    return pSurface;
}

} // namespace ZARN
