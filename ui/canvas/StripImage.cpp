#include "ui/canvas/StripImage.h"

#include "app/Numeric.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ZARN {

namespace {

constexpr int kNothing = std::numeric_limits<int>::max();

int pixel(double coordinate)
{
    constexpr double kFarthest = 1e7; // added before the fraction goes: cut off is rounded down there, and cheaper than std::floor()
    return saturatingCast<int>(std::clamp(coordinate, -kFarthest, kFarthest) + kFarthest) - static_cast<int>(kFarthest);
}

} // namespace

void StripImage::setSize(const QSize& size)
{
    if (mSize == size)
        return clear();
    mSize = size.expandedTo(QSize(0, 0));
    mImage = QImage(mSize, QImage::Format_ARGB32_Premultiplied);
    mImage.fill(Qt::transparent);
    mPixels.assign(static_cast<std::size_t>(mSize.width()) * static_cast<std::size_t>(mSize.height()), 0);
    mUsed = QRect();
    mTop.assign(static_cast<std::size_t>(mSize.width()), kNothing);
    mBottom.assign(mTop.size(), -kNothing);
}

void StripImage::clear()
{
    for (int x = mUsed.left(); x <= mUsed.right(); ++x)
        std::fill_n(mPixels.begin() + static_cast<std::ptrdiff_t>(x) * mSize.height() + mUsed.top(), mUsed.height(), 0U);
    mUsed = QRect();
}

const QImage& StripImage::image()
{
    constexpr int kBlock = 16; // columns and rows that a cache holds at once
    auto* pRows = reinterpret_cast<uint32_t*>(mImage.bits());
    const std::ptrdiff_t stride = mImage.bytesPerLine() / 4;
    for (int top = mUsed.top(); top <= mUsed.bottom(); top += kBlock) {
        const int bottom = std::min(top + kBlock - 1, mUsed.bottom());
        for (int left = mUsed.left(); left <= mUsed.right(); left += kBlock) {
            const int right = std::min(left + kBlock - 1, mUsed.right());
            for (int y = top; y <= bottom; ++y) {
                for (int x = left; x <= right; ++x)
                    pRows[y * stride + x] = mPixels[static_cast<std::size_t>(x) * static_cast<std::size_t>(mSize.height()) + static_cast<std::size_t>(y)];
            }
        }
    }
    return mImage;
}

void StripImage::addStrip(std::span<const QPointF> points, const QColor& colour, int thickness, const QRect& clip)
{
    const QRect inside = clip.intersected(QRect(QPoint(), mSize));
    if (inside.isEmpty())
        return;
    const QRgb word = colour.rgb();
    mFirstColumn = inside.right() + 1;
    mLastColumn = inside.left() - 1;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const QPointF from = points[i - 1] + QPointF(0.5, 0.5), to = points[i] + QPointF(0.5, 0.5);
        if (!std::isfinite(from.x() + from.y() + to.x() + to.y())) {
            fill(word, thickness, inside);
        } else if (to.x() < from.x()) {
            // A step back is a run of its own: spans of one column join only what the strip joins.
            fill(word, thickness, inside);
            addSegment(to, from, inside);
            fill(word, thickness, inside);
        } else {
            addSegment(from, to, inside);
        }
    }
    fill(word, thickness, inside);
}

void StripImage::addSegment(const QPointF& from, const QPointF& to, const QRect& clip)
{
    const int first = pixel(from.x()), last = pixel(to.x());
    if (last < clip.left() || first > clip.right())
        return;
    if (first == last)
        return extend(first, from.y(), to.y());
    const double slope = (to.y() - from.y()) / (to.x() - from.x());
    const auto at = [&](double x) { return from.y() + (x - from.x()) * slope; };
    for (int column = std::max(first, clip.left()); column <= std::min(last, clip.right()); ++column)
        extend(column, column == first ? from.y() : at(column), column == last ? to.y() : at(column + 1));
}

void StripImage::extend(int column, double y1, double y2)
{
    const auto place = static_cast<std::size_t>(column);
    mTop[place] = std::min(mTop[place], pixel(std::min(y1, y2)));
    mBottom[place] = std::max(mBottom[place], pixel(std::max(y1, y2)));
    mFirstColumn = std::min(mFirstColumn, column);
    mLastColumn = std::max(mLastColumn, column);
}

void StripImage::fill(uint32_t colour, int thickness, const QRect& clip)
{
    const int before = (thickness - 1) / 2, after = thickness / 2;
    for (int column = mFirstColumn; column <= mLastColumn; ++column) {
        int& top = mTop[static_cast<std::size_t>(column)];
        int& bottom = mBottom[static_cast<std::size_t>(column)];
        const QRect span(QPoint(column - before, std::max(top, -1000000) - before), QPoint(column + after, std::min(bottom, 1000000) + after));
        top = kNothing;
        bottom = -kNothing;
        const QRect shown = span.intersected(clip);
        if (shown.isEmpty())
            continue;
        mUsed = mUsed.united(shown);
        for (int x = shown.left(); x <= shown.right(); ++x)
            std::fill_n(mPixels.begin() + static_cast<std::ptrdiff_t>(x) * mSize.height() + shown.top(), shown.height(), colour);
    }
    mFirstColumn = clip.right() + 1;
    mLastColumn = clip.left() - 1;
}

} // namespace ZARN
