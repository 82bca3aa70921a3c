#include "vesk/gl/Renderer.h"

#include <QByteArray>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include <algorithm>
#include <array>

namespace VESK::OpenGL {

bool isSoftwareRenderer()
{
    const QByteArray name(reinterpret_cast<const char*>(QOpenGLContext::currentContext()->functions()->glGetString(GL_RENDERER)));
    static constexpr std::array kPrograms{"llvmpipe", "softpipe", "SwiftShader", "GDI Generic"};
    return std::any_of(kPrograms.begin(), kPrograms.end(), [&](const char* pProgram) { return name.contains(pProgram); });
}

} // namespace VESK::OpenGL
