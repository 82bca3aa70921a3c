#include "vesk/gl/FixedDevice.h"

#include <QCoreApplication>
#include <QOpenGLContext>
#include <QOpenGLFunctions_1_1>
#include <QOpenGLVersionFunctionsFactory>

namespace VESK::OpenGL {

bool FixedDevice::init()
{
    if (!useContext())
        return false;
    QOpenGLContext* pContext = QOpenGLContext::currentContext();
    // A core context hands out these functions too, and then fails at each of them.
    const bool isCore = pContext->format().profile() == QSurfaceFormat::CoreProfile && pContext->format().version() >= qMakePair(3, 2);
    mpFixed = pContext->isOpenGLES() || isCore ? nullptr : QOpenGLVersionFunctionsFactory::get<QOpenGLFunctions_1_1>(pContext);
    if (mpFixed && mpFixed->initializeOpenGLFunctions())
        return true;
    mpFixed = nullptr;
    setError(QCoreApplication::translate("VESK::OpenGL::FixedDevice", "No OpenGL compatibility context here"));
    return false;
}

GLint FixedDevice::maskFormat() const
{
    return GL_INTENSITY8;
}

void FixedDevice::begin(const QSize& size, double ratio)
{
    Device::begin(size, ratio);
    mpFixed->glMatrixMode(GL_PROJECTION);
    mpFixed->glPushMatrix();
    mpFixed->glLoadIdentity();
    mpFixed->glOrtho(0, size.width(), size.height(), 0, -1, 1);
    mpFixed->glMatrixMode(GL_MODELVIEW);
    mpFixed->glPushMatrix();
    mpFixed->glLoadIdentity();
    mpFixed->glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_MODULATE);
}

void FixedDevice::end()
{
    Device::end();
    mpFixed->glDisable(GL_TEXTURE_2D);
    mpFixed->glMatrixMode(GL_PROJECTION);
    mpFixed->glPopMatrix();
    mpFixed->glMatrixMode(GL_MODELVIEW);
    mpFixed->glPopMatrix();
}

void FixedDevice::drawBatch(const Batch& batch, std::span<const Vertex> vertices)
{
    functions().glUseProgram(0);
    if (batch.texture != 0) {
        mpFixed->glEnable(GL_TEXTURE_2D);
        mpFixed->glBindTexture(GL_TEXTURE_2D, batch.texture);
    } else {
        mpFixed->glDisable(GL_TEXTURE_2D);
    }
    mpFixed->glBegin(batch.mode);
    for (const Vertex& vertex : vertices) {
        mpFixed->glColor4ub(vertex.colour[0], vertex.colour[1], vertex.colour[2], vertex.colour[3]);
        mpFixed->glTexCoord2f(vertex.u, vertex.v);
        mpFixed->glVertex2f(vertex.x, vertex.y);
    }
    mpFixed->glEnd();
}

} // namespace VESK::OpenGL
