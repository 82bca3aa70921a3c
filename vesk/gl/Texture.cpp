#include "vesk/gl/Texture.h"

#include "vesk/gl/Device.h"

#include <QOpenGLContext>

namespace VESK::OpenGL {

namespace {

QOpenGLExtraFunctions& functions()
{
    return *QOpenGLContext::currentContext()->extraFunctions();
}

} // namespace

void Texture::create(bool smooth)
{
    QOpenGLExtraFunctions& gl = functions();
    if (mName == 0)
        gl.glGenTextures(1, &mName);
    gl.glBindTexture(GL_TEXTURE_2D, mName);
    const GLint filter = smooth ? GL_LINEAR : GL_NEAREST;
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, filter);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, filter);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
}

void Texture::setImage(const QImage& image, bool smooth)
{
    if (image.isNull())
        return clear();
    const QImage pixels = image.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    create(smooth);
    QOpenGLExtraFunctions& gl = functions();
    gl.glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    gl.glPixelStorei(GL_UNPACK_ROW_LENGTH, static_cast<GLint>(pixels.bytesPerLine() / 4));
    if (mSize == pixels.size())
        gl.glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, pixels.width(), pixels.height(), GL_RGBA, GL_UNSIGNED_BYTE, pixels.constBits());
    else
        gl.glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, pixels.width(), pixels.height(), 0, GL_RGBA, GL_UNSIGNED_BYTE, pixels.constBits());
    gl.glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
    mSize = pixels.size();
}

void Texture::setMask(const QSize& size, GLint format)
{
    create(false);
    const QByteArray empty(static_cast<qsizetype>(size.width()) * size.height(), '\0');
    functions().glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    functions().glTexImage2D(GL_TEXTURE_2D, 0, format, size.width(), size.height(), 0, GL_RED, GL_UNSIGNED_BYTE, empty.constData());
    mSize = size;
}

void Texture::setMaskPart(const QRect& rect, const uchar* pBytes)
{
    QOpenGLExtraFunctions& gl = functions();
    gl.glBindTexture(GL_TEXTURE_2D, mName);
    gl.glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    gl.glTexSubImage2D(GL_TEXTURE_2D, 0, rect.x(), rect.y(), rect.width(), rect.height(), GL_RED, GL_UNSIGNED_BYTE, pBytes);
}

void Texture::clear()
{
    if (mName != 0 && QOpenGLContext::currentContext())
        functions().glDeleteTextures(1, &mName);
    mName = 0;
    mSize = QSize();
}

void Texture::draw(Device& device, const QRectF& target, double opacity) const
{
    if (!isEmpty())
        device.addQuad(EShading::eImage, *this, target, QRectF(0, 0, 1, 1), QColor::fromRgbF(1, 1, 1, static_cast<float>(opacity)));
}

} // namespace VESK::OpenGL
