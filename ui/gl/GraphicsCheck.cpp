#include "ui/gl/GraphicsCheck.h"

#include "vesk/gl/Renderer.h"

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>

#include <utility>

namespace ZARN {

namespace {

struct Machine {
    std::pair<int, int> version; ///< 0 without OpenGL
    bool isSoftware = false;
};

Machine lookAtMachine()
{
    // Where there is an X server this platform has contexts too, but its windows show nothing of them.
    if (QGuiApplication::platformName() == "offscreen")
        return {};
    QOffscreenSurface surface;
    surface.setFormat(GraphicsCheck::surfaceFormat());
    surface.create();
    QOpenGLContext context;
    context.setFormat(GraphicsCheck::surfaceFormat());
    if (!context.create() || !surface.isValid() || !context.makeCurrent(&surface))
        return {};
    const Machine machine{{context.format().majorVersion(), context.format().minorVersion()}, VESK::OpenGL::isSoftwareRenderer()};
    context.doneCurrent();
    return machine;
}

const Machine& machine()
{
    static const Machine found = lookAtMachine();
    return found;
}

} // namespace

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
    const auto [major, minor] = machine().version;
    if (major == 0)
        return QCoreApplication::translate("ZARN::GraphicsCheck", "No OpenGL here: the map cannot be drawn");
    if (std::pair(major, minor) < std::pair(3, 3))
        return QCoreApplication::translate("ZARN::GraphicsCheck", "OpenGL 3.3 is needed, here is %1.%2: the map cannot be drawn").arg(major).arg(minor);
    return {};
}

bool GraphicsCheck::isSoftware()
{
    const QByteArray wish = qgetenv("ZARN_GRAPHICS");
    return wish == "software" || (wish != "card" && machine().isSoftware);
}

} // namespace ZARN
