#include "ui/gl/GlCanvas.h"

#include "ui/canvas/CanvasFont.h"
#include "vesk/gl/Lines.h"
#include "vesk/gl/LineStripsSimple.h"
#include "vesk/gl/TriangleStrip.h"

#include <cmath>

namespace ZARN {

namespace {

constexpr double kGreatArea = 20000; // pixels from which an opaque rectangle is cleared instead of drawn
constexpr int kFramesKept = 10; // so long an image that is not drawn keeps its texture

VESK::OpenGL::LineStyle lineStyle(const CanvasPen& pen)
{
    return {pen.colour, pen.width, pen.smooth, pen.dash};
}

} // namespace

GlCanvas::GlCanvas(std::unique_ptr<VESK::OpenGL::Device> pDevice)
    : mpDevice(pDevice ? std::move(pDevice) : std::make_unique<VESK::OpenGL::Device>()), mDevice(*mpDevice)
{
}

GlCanvas::~GlCanvas() = default;

bool GlCanvas::init()
{
    const VESK::OpenGL::StateScope scope;
    if (!mDevice.init())
        return false;
    mpRegular = mFonts.add("text", canvasFontFile(false));
    mpBold = mFonts.add("text-bold", canvasFontFile(true));
    return mpRegular && mpBold;
}

void GlCanvas::begin(const QSize& size, double ratio, const QColor& background)
{
    mState.emplace();
    ++mFrame;
    mClip.reset();
    mClipChanged = false;
    mSavedClips.clear();
    mDevice.begin(size, ratio);
    mDevice.clear(background);
}

void GlCanvas::end()
{
    ready().end();
    forgetImages();
    mState.reset();
}

void GlCanvas::forgetImages()
{
    std::erase_if(mImages, [this](const auto& kept) { return mFrame - kept.second.lastFrame > kFramesKept; });
}

void GlCanvas::push()
{
    mDevice.matrix().MatrixPush();
    mSavedClips.push_back(mClip);
}

void GlCanvas::pop()
{
    mDevice.matrix().MatrixPop();
    if (mSavedClips.empty())
        return;
    mClipChanged = mClipChanged || mClip != mSavedClips.back();
    mClip = mSavedClips.back();
    mSavedClips.pop_back();
}

void GlCanvas::translate(double x, double y)
{
    mDevice.matrix().MatrixTranslate(x, y);
}

void GlCanvas::scale(double x, double y)
{
    mDevice.matrix().MatrixScale(x, y);
}

QRectF GlCanvas::mapped(const QRectF& rect) const
{
    return QRectF(mDevice.matrix().map(rect.topLeft()), mDevice.matrix().map(rect.bottomRight())).normalized();
}

void GlCanvas::clip(const QRectF& rect)
{
    const QRectF box = mapped(rect);
    mClip = mClip ? mClip->intersected(box) : box;
    mClipChanged = true;
}

VESK::OpenGL::Device& GlCanvas::ready()
{
    if (mClipChanged)
        applyClip();
    mClipChanged = false;
    return mDevice;
}

void GlCanvas::applyClip()
{
    if (mClip)
        mDevice.setClip(*mClip);
    else
        mDevice.setNoClip();
}

void GlCanvas::lines(std::span<const QPointF> points, const CanvasPen& pen)
{
    VESK::OpenGL::Lines lines;
    lines.setStyle(lineStyle(pen));
    for (std::size_t i = 0; i + 1 < points.size(); i += 2)
        lines.addLine(points[i].x(), points[i].y(), points[i + 1].x(), points[i + 1].y());
    lines.draw(ready());
}

void GlCanvas::lineStrip(std::span<const QPointF> points, const CanvasPen& pen)
{
    VESK::OpenGL::LineStripsSimple strip;
    strip.setStyle(lineStyle(pen));
    strip.addStrip(points);
    strip.draw(ready());
}

void GlCanvas::lineStrip(std::span<const QPointF> points, std::span<const QColor> colours, const CanvasPen& pen)
{
    VESK::OpenGL::LineStripsSimple strip;
    strip.setStyle(lineStyle(pen));
    strip.setVertexColours(true);
    for (std::size_t i = 0; i < std::min(points.size(), colours.size()); ++i)
        strip.addVertex(points[i], colours[i]);
    strip.draw(ready());
}

void GlCanvas::fillRect(const QRectF& rect, const QColor& colour)
{
    const QRectF box = mapped(rect);
    const bool isWhole = box == box.toRect(); // only whole pixels can be cleared
    if (isWhole && colour.alpha() == 255 && box.width() * box.height() > kGreatArea) {
        ready().clearRect(mClip ? box.intersected(*mClip) : box, colour);
        mClipChanged = mClip.has_value();
        return;
    }
    VESK::OpenGL::TriangleStrip strip;
    strip.setColour(colour);
    strip.setRect(rect);
    strip.draw(ready());
}

void GlCanvas::triangles(std::span<const QPointF> points, const QColor& colour)
{
    VESK::OpenGL::TriangleStrip::drawTriangles(ready(), points, colour);
}

void GlCanvas::text(const QPointF& position, const QString& text, const CanvasText& style)
{
    VESK::OpenGL::TextureFont* pFont = style.bold ? mpBold : mpRegular;
    if (!pFont || !std::isfinite(position.x()) || !std::isfinite(position.y()))
        return;
    ready();
    pFont->setColour(style.colour);
    pFont->setSize(std::round(style.size));
    const QPointF origin = textOrigin(position, text, style);
    const double ascent = canvasAscent(style.size);
    if (style.upwards)
        pFont->draw(mDevice, origin.x() + ascent, origin.y(), text, true);
    else
        pFont->draw(mDevice, origin.x(), origin.y() + ascent, text);
}

void GlCanvas::image(const QRectF& target, const QImage& image)
{
    if (image.isNull())
        return;
    KeptImage& kept = mImages[image.cacheKey()];
    if (!kept.texture) {
        kept.texture = std::make_unique<VESK::OpenGL::Texture>();
        kept.texture->setImage(image, true);
    }
    kept.lastFrame = mFrame;
    kept.texture->draw(ready(), target);
}

} // namespace ZARN
