#pragma once

#include <QImage>
#include <QOpenGLExtraFunctions>

namespace VESK::OpenGL {

class Device;

/// A picture in the memory of the graphics card. Belongs to the context that was current when it was filled first, which must be
/// current when it goes.
class Texture {
public:
    Texture() = default;
    ~Texture() { clear(); }
    Texture(const Texture&) = delete;
    Texture& operator=(const Texture&) = delete;

    /// Takes over a picture; one of the same size goes into the same memory. @param smooth blends between pixels when it is stretched.
    void setImage(const QImage& image, bool smooth = false);
    /// An empty mask of one byte a pixel. @param format in the memory of the graphics card: Device::maskFormat()
    void setMask(const QSize& size, GLint format);
    /// Writes a part of the mask; `pBytes` has rows of rect.width() bytes.
    void setMaskPart(const QRect& rect, const uchar* pBytes);
    void clear();

    [[nodiscard]] bool isEmpty() const { return mName == 0; }
    [[nodiscard]] QSize size() const { return mSize; }
    [[nodiscard]] GLuint name() const { return mName; }
    /// Draws the picture, stretched to a rectangle in pixels. @param opacity 0..1
    void draw(Device& device, const QRectF& target, double opacity = 1.0) const;

private:
    void create(bool smooth);

    GLuint mName = 0;
    QSize mSize;
};

} // namespace VESK::OpenGL
