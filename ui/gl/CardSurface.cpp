#include "ui/gl/CardSurface.h"

#include "vesk/gl/FixedDevice.h"

#include <QOpenGLContext>

namespace ZARN {

namespace {

std::unique_ptr<VESK::OpenGL::Device> createFixedDevice()
{
    return std::make_unique<VESK::OpenGL::FixedDevice>();
}

} // namespace

CardSurface::CardSurface(const SurfacePainting& painting, bool isFixedFunction, QWidget* pParent)
    : QOpenGLWidget(pParent), GlSurface(painting, isFixedFunction ? &createFixedDevice : nullptr)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    if (!isFixedFunction)
        return;
    QSurfaceFormat wanted = format();
    wanted.setVersion(2, 1);
    wanted.setProfile(QSurfaceFormat::CompatibilityProfile);
    setFormat(wanted);
}

CardSurface::~CardSurface()
{
    release();
    if (context())
        disconnect(context(), nullptr, this, nullptr); // it outlives this part of the object
}

void CardSurface::initializeGL()
{
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &CardSurface::release, Qt::UniqueConnection);
    start();
}

void CardSurface::paintGL()
{
    if (isStarted())
        draw(size(), devicePixelRatioF(), ELayers::eAll);
}

void CardSurface::release()
{
    if (!isStarted())
        return;
    makeCurrent();
    finish();
    doneCurrent();
}

} // namespace ZARN
