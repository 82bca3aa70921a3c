#include "vesk/gl/Shaders.h"

#include "vesk/gl/Device.h"

#include <QOpenGLContext>
#include <QOpenGLShaderProgram>

namespace VESK::OpenGL {

namespace {

constexpr const char* kVertex = R"(
in vec2 position;
in vec2 place;
in vec4 colour;
out vec2 vPlace;
out vec4 vColour;
uniform vec2 size;
void main()
{
    vPlace = place;
    vColour = colour;
    gl_Position = vec4(position.x * 2.0 / size.x - 1.0, 1.0 - position.y * 2.0 / size.y, 0.0, 1.0);
}
)";

constexpr const char* kFragment = R"(
in vec2 vPlace;
in vec4 vColour;
out vec4 result;
uniform sampler2D picture;
void main()
{
    result = vColour * %1;
}
)";

const char* factor(EShading shading)
{
    switch (shading) {
    case EShading::eMask:
        return "texture(picture, vPlace).r";
    case EShading::eImage:
        return "texture(picture, vPlace)";
    default:
        return "clamp(vPlace.y + 0.5 - abs(vPlace.x), 0.0, 1.0)";
    }
}

QString versioned(const QString& source)
{
    const bool isEs = QOpenGLContext::currentContext()->isOpenGLES();
    return QLatin1String(isEs ? "#version 300 es\nprecision highp float;\n" : "#version 330 core\n") + source;
}

} // namespace

std::unique_ptr<QOpenGLShaderProgram> buildProgram(EShading shading, QString& error)
{
    auto pProgram = std::make_unique<QOpenGLShaderProgram>();
    const QString fragment = QString::fromLatin1(kFragment).arg(QLatin1String(factor(shading)));
    bool isBuilt = pProgram->addShaderFromSourceCode(QOpenGLShader::Vertex, versioned(QString::fromLatin1(kVertex)))
                   && pProgram->addShaderFromSourceCode(QOpenGLShader::Fragment, versioned(fragment));
    pProgram->bindAttributeLocation("position", 0);
    pProgram->bindAttributeLocation("place", 1);
    pProgram->bindAttributeLocation("colour", 2);
    isBuilt = isBuilt && pProgram->link();
    if (isBuilt)
        return pProgram;
    error = pProgram->log();
    return nullptr;
}

} // namespace VESK::OpenGL
