#include "ui/gl/GlSurface.h"
#include "ui/graph/GraphSurface.h"
#include "vesk/gl/FixedDevice.h"

#include <QOpenGLWidget>

namespace ZARN {

namespace {

GlPainting paintingFor(const GraphPainting& painting)
{
    const auto paint = [paint = painting.paint](GlCanvas& canvas, const QSize& size, double ratio) { paint(canvas, size, ratio); };
    return {Qt::black, paint, nullptr, nullptr, [failed = painting.failed](const QString& /*reason*/) { failed(); }};
}

} // namespace

QWidget* createShaderSurface(const GraphPainting& painting, QWidget* pParent)
{
    return &GlSurface::createOnCard(paintingFor(painting), nullptr, pParent)->widget();
}

QWidget* createFixedSurface(const GraphPainting& painting, QWidget* pParent)
{
    const auto createDevice = []() -> std::unique_ptr<VESK::OpenGL::Device> { return std::make_unique<VESK::OpenGL::FixedDevice>(); };
    QWidget& widget = GlSurface::createOnCard(paintingFor(painting), createDevice, pParent)->widget();
    if (auto* pGl = qobject_cast<QOpenGLWidget*>(&widget)) {
        QSurfaceFormat format = pGl->format();
        format.setVersion(2, 1);
        format.setProfile(QSurfaceFormat::CompatibilityProfile);
        pGl->setFormat(format);
    }
    return &widget;
}

} // namespace ZARN
