#include "app/gui/GraphicsCheck.h"

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>

namespace ZARN {

QSurfaceFormat GraphicsCheck::surfaceFormat()
{
    QSurfaceFormat format;
    format.setVersion(3, 3);
    format.setProfile(QSurfaceFormat::CoreProfile);
    format.setOption(QSurfaceFormat::DebugContext);
    format.setDepthBufferSize(24);
    format.setStencilBufferSize(8);
    return format;
}

QString GraphicsCheck::problem()
{
    const QString none = QCoreApplication::translate("ZARN::GraphicsCheck", "No OpenGL here: graph and map cannot be drawn");
    // Where there is an X server this platform has contexts too, but its windows show nothing of them.
    if (QGuiApplication::platformName() == "offscreen")
        return none;
    QOffscreenSurface surface;
    surface.setFormat(surfaceFormat());
    surface.create();
    QOpenGLContext context;
    context.setFormat(surfaceFormat());
    if (!context.create() || !surface.isValid() || !context.makeCurrent(&surface))
        return none;
    const QSurfaceFormat found = context.format();
    context.doneCurrent();
    if (found.version() < qMakePair(3, 3))
        return QCoreApplication::translate("ZARN::GraphicsCheck", "OpenGL 3.3 is needed, here is %1.%2: graph and map cannot be drawn")
            .arg(found.majorVersion())
            .arg(found.minorVersion());
    return {};
}

} // namespace ZARN
