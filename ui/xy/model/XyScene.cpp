#include "ui/xy/model/XyScene.h"

#include "ui/canvas/CanvasFont.h"
#include "ui/canvas/ColourContrast.h"
#include "ui/graph/model/AxisTicks.h"
#include "ui/graph/model/GraphTexts.h"

#include <cmath>

namespace ZARN {

namespace {

constexpr std::size_t kFewPoints = 20000; // drawn as dots; more than that fill the plot as they are
constexpr double kDot = 3.0;              // pixels
constexpr double kReach = 12.0;           // pixels from a point within which it is meant
constexpr double kTickSpacing = 90.0;
constexpr double kMargin = 0.04; // of the values, around them
constexpr double kBandAlpha = 0.22, kGridAlpha = 0.4;
constexpr int kScaleSteps = 64;

ValueSpan spanOf(const XyAxis& axis)
{
    const double margin = axis.range() > 0 ? axis.range() * kMargin : std::max(std::abs(axis.lower) * kMargin, 1.0);
    return {axis.lower - margin, axis.upper + margin};
}

double shareIn(const ValueSpan& span, double value)
{
    return (value - span[0]) / (span[1] - span[0]);
}

} // namespace

XyScene::XyScene(const XyPoints& points, const Palette& palette, const QSizeF& size, double textSize)
    : mPoints(points), mPalette(palette), mSize(size), mTextSize(textSize), mLine(std::ceil(textSize * 1.22) + 1),
      mCharacter(canvasAdvance(textSize)), mSpanX(spanOf(points.axis(XyPoints::eX))), mSpanY(spanOf(points.axis(XyPoints::eY)))
{
    const double left = 9 * mCharacter, right = 13 * mCharacter, top = 2 * mLine + 8, bottom = 2.6 * mLine;
    mPlot = QRectF(left, top, std::max(size.width() - left - right, 1.0), std::max(size.height() - top - bottom, 1.0));
    mixColours();
    mScale = QRectF(mPlot.right() + 1.5 * mCharacter, mPlot.top(), 1.5 * mCharacter, mPlot.height());
}

QPointF XyScene::placeOf(double x, double y) const
{
    return {mPlot.left() + shareIn(mSpanX, x) * mPlot.width(), mPlot.bottom() - shareIn(mSpanY, y) * mPlot.height()};
}

QPointF XyScene::placeOf(const XyPoint& point) const
{
    return placeOf(mPoints.valueOf(XyPoints::eX, point.column), mPoints.valueOf(XyPoints::eY, point.row));
}

/// Points come by the hundred thousand: each takes one of these.
void XyScene::mixColours()
{
    const auto& stops = mPalette.graph.dots;
    for (std::size_t i = 0; i < kColours; ++i) {
        const double place = static_cast<double>(i) / (kColours - 1) * static_cast<double>(std::size(stops) - 1);
        const auto first = std::min(static_cast<std::size_t>(place), std::size(stops) - 2);
        const double part = place - static_cast<double>(first);
        const QColor &a = stops[first], &b = stops[first + 1];
        const auto mixed = [part](int from, int to) { return static_cast<int>(std::lround(from + part * (to - from))); };
        mColours[i] = QColor(mixed(a.red(), b.red()), mixed(a.green(), b.green()), mixed(a.blue(), b.blue()));
    }
}

const QColor& XyScene::colourOf(double share) const
{
    return mColours[static_cast<std::size_t>(std::clamp(share, 0.0, 1.0) * (kColours - 1) + 0.5)];
}

double XyScene::shareOf(const XyPoint& point) const
{
    const XyAxis& scale = mPoints.axis(XyPoints::eColour);
    return scale.range() > 0 ? (point.colour - scale.lower) / scale.range() : 1.0;
}

void XyScene::draw(Canvas& canvas) const
{
    canvas.fillRect(QRectF(QPointF(), mSize), mPalette.graph.labelGround);
    canvas.fillRect(mPlot, mPalette.graph.ground);
    if (mPoints.points().empty())
        return;
    drawBands(canvas);
    drawAxisX(canvas);
    drawAxisY(canvas);
    drawPoints(canvas);
    drawScale(canvas);
    canvas.outline(mPlot, {textColourOn(mPalette.graph.ground)});
}

/// What is left of the ground is the envelope within which everything is all right.
void XyScene::drawBands(Canvas& canvas) const
{
    canvas.push();
    canvas.clip(mPlot);
    const auto bounded = [](double value, const ValueSpan& span) { return std::clamp(value, span[0], span[1]); };
    for (const GraphBand& band : mPoints.axis(XyPoints::eX).bands) {
        const double left = placeOf(bounded(band.lower, mSpanX), 0).x(), right = placeOf(bounded(band.upper, mSpanX), 0).x();
        if (right > left)
            canvas.fillRect(QRectF(QPointF(left, mPlot.top()), QPointF(right, mPlot.bottom())), withAlpha(band.colour, kBandAlpha));
    }
    for (const GraphBand& band : mPoints.axis(XyPoints::eY).bands) {
        const double top = placeOf(0, bounded(band.upper, mSpanY)).y(), bottom = placeOf(0, bounded(band.lower, mSpanY)).y();
        if (bottom > top)
            canvas.fillRect(QRectF(QPointF(mPlot.left(), top), QPointF(mPlot.right(), bottom)), withAlpha(band.colour, kBandAlpha));
    }
    canvas.pop();
}

void XyScene::drawPoints(Canvas& canvas) const
{
    canvas.push();
    canvas.clip(mPlot);
    if (mPoints.points().size() <= kFewPoints) {
        for (const XyPoint& point : mPoints.points()) {
            const QPointF place = placeOf(point);
            canvas.fillRect(QRectF(std::round(place.x()) - kDot / 2, std::round(place.y()) - kDot / 2, kDot, kDot),
                            colourOf(shareOf(point)));
        }
    } else {
        QImage image(static_cast<int>(XyPoints::kColumns), static_cast<int>(XyPoints::kRows), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        for (const XyPoint& point : mPoints.points())
            image.setPixel(static_cast<int>(point.column), static_cast<int>(XyPoints::kRows - 1 - point.row),
                           colourOf(shareOf(point)).rgba());
        const XyAxis &x = mPoints.axis(XyPoints::eX), &y = mPoints.axis(XyPoints::eY);
        canvas.image(QRectF(placeOf(x.lower, y.upper), placeOf(x.upper, y.lower)), image);
    }
    canvas.pop();
}

void XyScene::drawAxisX(Canvas& canvas) const
{
    const AxisTicks ticks(mSpanX[0], mSpanX[1], mPlot.width(), kTickSpacing);
    std::vector<QPointF> grid;
    for (const AxisTick& tick : ticks.ticks()) {
        const double x = std::floor(placeOf(tick.value, 0).x());
        if (!tick.isMajor || x < mPlot.left() || x > mPlot.right())
            continue;
        grid.insert(grid.end(), {QPointF(x, mPlot.top()), QPointF(x, mPlot.bottom() - 1)});
        canvas.text(QPointF(x, mPlot.bottom() + 3), ticks.valueLabel(tick.value), style(Qt::AlignHCenter | Qt::AlignTop));
    }
    canvas.lines(grid, {withAlpha(mPalette.graph.grid, kGridAlpha)});
    canvas.text(QPointF(mPlot.center().x(), mSize.height() - 2), mPoints.axis(XyPoints::eX).label,
                style(Qt::AlignHCenter | Qt::AlignBottom));
}

void XyScene::drawAxisY(Canvas& canvas) const
{
    const AxisTicks ticks(mSpanY[0], mSpanY[1], mPlot.height(), 2.5 * mLine);
    std::vector<QPointF> grid;
    for (const AxisTick& tick : ticks.ticks()) {
        const double y = std::floor(placeOf(0, tick.value).y());
        if (!tick.isMajor || y < mPlot.top() || y > mPlot.bottom())
            continue;
        grid.insert(grid.end(), {QPointF(mPlot.left(), y), QPointF(mPlot.right() - 1, y)});
        canvas.text(QPointF(mPlot.left() - 4, y), ticks.valueLabel(tick.value), style(Qt::AlignRight | Qt::AlignVCenter));
    }
    canvas.lines(grid, {withAlpha(mPalette.graph.grid, kGridAlpha)});
    canvas.text(QPointF(4, 4), mPoints.axis(XyPoints::eY).label, style(Qt::AlignLeft | Qt::AlignTop));
}

QString XyScene::scaleLabel(double value) const
{
    return mPoints.isTimeColour() ? graphTime(mPoints.choice().times.told(value), 0, 1)
                                  : graphNumber(value, mPoints.axis(XyPoints::eColour).precision);
}

void XyScene::drawScale(Canvas& canvas) const
{
    const XyAxis& scale = mPoints.axis(XyPoints::eColour);
    const double step = mScale.height() / kScaleSteps;
    for (int i = 0; i < kScaleSteps; ++i)
        canvas.fillRect(QRectF(mScale.left(), mScale.bottom() - (i + 1) * step, mScale.width(), step + 0.5),
                        colourOf((i + 0.5) / kScaleSteps));
    canvas.outline(mScale, {mPalette.graph.label});
    const double x = mScale.right() + 4;
    canvas.text(QPointF(x, mScale.top()), scaleLabel(scale.upper), style(Qt::AlignLeft | Qt::AlignTop));
    if (scale.range() > 0)
        canvas.text(QPointF(x, mScale.center().y()), scaleLabel(scale.lower + scale.range() / 2), style(Qt::AlignLeft | Qt::AlignVCenter));
    canvas.text(QPointF(x, mScale.bottom()), scaleLabel(scale.lower), style(Qt::AlignLeft | Qt::AlignBottom));
    canvas.text(QPointF(mSize.width() - 4, 4 + mLine), scale.label,
                style(Qt::AlignRight | Qt::AlignTop)); // the other label has the line above
}

void XyScene::drawCursor(Canvas& canvas, const XyCursor& cursor) const
{
    const QPointF place = placeOf(cursor.x, cursor.y);
    if (!std::isfinite(place.x()) || !std::isfinite(place.y()))
        return;
    const QColor colour = textColourOn(mPalette.graph.ground);
    canvas.push();
    canvas.clip(mPlot);
    const double x = std::floor(place.x()), y = std::floor(place.y());
    const std::array lines{QPointF(x, mPlot.top()), QPointF(x, mPlot.bottom()), QPointF(mPlot.left(), y), QPointF(mPlot.right(), y)};
    canvas.lines(lines, {withAlpha(colour, 0.6), 1.0, false, 4.0});
    canvas.outline(QRectF(x - 4, y - 4, 9, 9), {colour});
    // Beside the place, on whichever side there is room.
    CanvasText text = style(Qt::AlignTop);
    const QSizeF box = canvas.textSize(cursor.text, text) + QSizeF(6, 2);
    const bool isRight = x + 10 + box.width() <= mPlot.right(), isBelow = y + 10 + box.height() <= mPlot.bottom();
    const QPointF corner(isRight ? x + 10 : x - 10 - box.width(), isBelow ? y + 10 : y - 10 - box.height());
    canvas.fillRect(QRectF(corner, box), mPalette.graph.labelGround);
    canvas.text(corner + QPointF(3, 1), cursor.text, text);
    canvas.pop();
}

std::optional<double> XyScene::timeAt(const QPointF& place) const
{
    std::optional<double> time;
    double nearest = kReach * kReach;
    for (const XyPoint& point : mPoints.points()) {
        const QPointF step = placeOf(point) - place;
        const double distance = QPointF::dotProduct(step, step);
        if (distance <= nearest) {
            nearest = distance;
            time = point.time;
        }
    }
    return time;
}

} // namespace ZARN
