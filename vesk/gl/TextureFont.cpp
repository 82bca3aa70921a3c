#include "vesk/gl/TextureFont.h"

#include "vesk/gl/Device.h"

namespace VESK::OpenGL {

namespace {

constexpr int kTextureSize = 1024;

int screenPixels(double size, double ratio)
{
    return std::clamp(static_cast<int>(std::lround(std::clamp(size, 1.0, 512.0) * ratio)), 1, 512);
}

} // namespace

bool TextureFont::findPlace(const QSize& size, QPoint& place)
{
    constexpr int kGap = 1;
    if (mNext.x() + size.width() + kGap > kTextureSize) {
        mNext = QPoint(0, mNext.y() + mRowHeight + kGap);
        mRowHeight = 0;
    }
    if (mNext.y() + size.height() > kTextureSize || size.width() > kTextureSize)
        return false;
    place = mNext;
    mNext.rx() += size.width() + kGap;
    mRowHeight = std::max(mRowHeight, size.height());
    return true;
}

void TextureFont::restart(Device& device)
{
    device.flush();
    mGlyphs.clear();
    mNext = QPoint();
    mRowHeight = 0;
    mTexture.setMask(QSize(kTextureSize, kTextureSize), device.maskFormat());
}

const TextureFont::Placed& TextureFont::placed(Device& device, char32_t character, int pixels)
{
    const auto found = mGlyphs.find({character, pixels});
    if (found != mGlyphs.end())
        return found->second;
    if (mTexture.isEmpty())
        restart(device);
    Placed placed{mRaster.glyph(character, pixels), {}};
    if (!placed.glyph.size.isEmpty()) {
        if (!findPlace(placed.glyph.size, placed.place)) {
            restart(device);
            if (!findPlace(placed.glyph.size, placed.place))
                placed.glyph.size = QSize();
        }
        if (!placed.glyph.size.isEmpty()) {
            device.flush();
            mTexture.setMaskPart(QRect(placed.place, placed.glyph.size), reinterpret_cast<const uchar*>(placed.glyph.coverage.constData()));
        }
    }
    return mGlyphs.emplace(std::pair(character, pixels), std::move(placed)).first->second;
}

void TextureFont::draw(Device& device, double x, double y, const QString& text, bool upwards)
{
    const int pixels = screenPixels(mSize, device.ratio());
    const double step = 1.0 / device.ratio();
    MatrixStack& matrix = device.matrix();
    const QPointF origin = matrix.map(QPointF(x, y));
    matrix.MatrixPush();
    // Characters keep their size and start on a whole pixel of the screen, where they are sharp.
    matrix.MatrixSet(QTransform::fromTranslate(std::round(origin.x() * device.ratio()) * step, std::round(origin.y() * device.ratio()) * step));
    if (upwards)
        matrix.MatrixRotate(-90);
    double pen = 0;
    for (const uint character : text.toUcs4()) {
        const Placed& at = placed(device, character, pixels);
        if (!at.glyph.size.isEmpty()) {
            const QRectF target(std::round(pen) * step + at.glyph.left * step, -at.glyph.top * step, at.glyph.size.width() * step,
                                at.glyph.size.height() * step);
            const QRectF part(QPointF(at.place) / kTextureSize, QSizeF(at.glyph.size) / kTextureSize);
            device.addQuad(EShading::eMask, mTexture, target, part, mColour);
        }
        pen += at.glyph.advance;
    }
    matrix.MatrixPop();
}

double TextureFont::width(const Device& device, const QString& text)
{
    double pen = 0;
    for (const uint character : text.toUcs4())
        pen += mRaster.glyph(character, screenPixels(mSize, device.ratio())).advance;
    return pen / device.ratio();
}

TextureFont* TextureFonts::add(const std::string& name, const QByteArray& fontFile)
{
    auto pFont = std::make_unique<TextureFont>(fontFile);
    if (!pFont->isValid())
        return nullptr;
    return (mFonts[name] = std::move(pFont)).get();
}

TextureFont* TextureFonts::find(const std::string& name) const
{
    const auto found = mFonts.find(name);
    return found == mFonts.end() ? nullptr : found->second.get();
}

} // namespace VESK::OpenGL
