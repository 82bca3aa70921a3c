#include "ui/canvas/WindowCanvas.h"

#include <QPainter>

#include <algorithm>

namespace ZARN {

namespace {

constexpr std::size_t kLong = 64;      // points of a strip from which spans are worth their image
constexpr double kGreatestWidth = 8.0; // in pixels of the screen: wider strips want round corners

} // namespace

WindowCanvas::WindowCanvas(QPainter& painter, StripImage& strips, const QSize& size, double ratio)
    : RasterCanvas(painter), mStrips(strips), mSize(size), mRatio(ratio)
{
}

WindowCanvas::~WindowCanvas()
{
    WindowCanvas::ready();
}

bool WindowCanvas::takesStrip(std::span<const QPointF> points, const CanvasPen& pen) const
{
    return points.size() >= kLong && !pen.smooth && pen.dash <= 0 && pen.colour.alpha() == 255 && pen.width * mRatio <= kGreatestWidth;
}

bool WindowCanvas::takesLines(std::span<const QPointF> points, const CanvasPen& pen) const
{
    if (pen.smooth || pen.dash > 0 || pen.width > 1 || mPainter.worldTransform().type() > QTransform::TxTranslate)
        return false;
    const auto isWhole = [](const QPointF& point) { return point == QPointF(point.toPoint()); };
    for (std::size_t i = 0; i + 1 < points.size(); i += 2) {
        const bool isStraight = points[i].x() == points[i + 1].x() || points[i].y() == points[i + 1].y();
        if (!isStraight || !isWhole(points[i]) || !isWhole(points[i + 1]))
            return false;
    }
    return true;
}

void WindowCanvas::lines(std::span<const QPointF> points, const CanvasPen& pen)
{
    if (!takesLines(points, pen))
        return RasterCanvas::lines(points, pen);
    // The painter blends an upright line row by row, in threads that it wakes for each line; an image of the line is blended at once.
    QPainter& painter = ready();
    const QRectF window = painter.worldTransform().inverted().mapRect(QRectF(QPointF(), mSize));
    QImage line;
    for (std::size_t i = 0; i + 1 < points.size(); i += 2) {
        const QRectF target = QRectF(points[i], points[i + 1]).normalized().adjusted(0, 0, 1, 1) & window;
        if (target.isEmpty())
            continue;
        const QSize pixels = (target.size() * mRatio).toSize();
        if (line.size() != pixels) {
            line = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
            line.fill(pen.colour);
        }
        painter.drawImage(target, line);
    }
}

QRect WindowCanvas::clipPixels() const
{
    const QPainter& painter = mPainter;
    QRectF clip(0, 0, mSize.width(), mSize.height());
    if (painter.hasClipping())
        clip &= painter.worldTransform().mapRect(painter.clipBoundingRect());
    return {QPoint(qRound(clip.left() * mRatio), qRound(clip.top() * mRatio)),
            QPoint(qRound(clip.right() * mRatio) - 1, qRound(clip.bottom() * mRatio) - 1)};
}

void WindowCanvas::lineStrip(std::span<const QPointF> points, const CanvasPen& pen)
{
    if (!takesStrip(points, pen))
        return RasterCanvas::lineStrip(points, pen);
    if (!mHasStrips)
        mStrips.setSize((QSizeF(mSize) * mRatio).toSize());
    mHasStrips = true;
    const QTransform now = mPainter.worldTransform();
    const QPointF half(0.5, 0.5), moved = QPointF(now.dx(), now.dy()) + half;
    const bool isMovedOnly = now.type() <= QTransform::TxTranslate; // as nearly all are
    const int thickness = std::max(1, qRound(pen.width * mRatio));
    // The middle of an even number of pixels is the edge between two: the first of these is named.
    const QPointF middle = thickness % 2 == 0 && mRatio > 1 ? half * 2 : half;
    mPixels.clear();
    for (const QPointF& point : points)
        mPixels.push_back((isMovedOnly ? point + moved : now.map(point) + half) * mRatio - middle);
    mStrips.addStrip(mPixels, pen.colour, thickness, clipPixels());
}

QPainter& WindowCanvas::ready()
{
    if (!mHasStrips)
        return mPainter;
    mHasStrips = false;
    const QRect used = mStrips.used();
    mPainter.save();
    mPainter.resetTransform();
    mPainter.setClipping(false); // the strips were clipped one by one
    mPainter.drawImage(QRectF(used.x() / mRatio, used.y() / mRatio, used.width() / mRatio, used.height() / mRatio), mStrips.image(), used);
    mPainter.restore();
    return mPainter;
}

} // namespace ZARN
