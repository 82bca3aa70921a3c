#include "ui/map/model/ProfileStrip.h"

#include "ui/map/model/PathLegend.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kPadding = 4.0; // pixels above the highest and below the lowest

} // namespace

void ProfileStrip::set(const MapPath& path, const QString& unit, double start)
{
    mPoints.clear();
    mColumns.clear();
    mUnit = unit;
    for (std::size_t i = 0; i < path.points().size(); ++i) {
        const FlightPathPoint& point = path.points()[i];
        if (point.time >= start && std::isfinite(point.altitude))
            mPoints.push_back({point.time, point.altitude, path.isGap(i)});
    }
    if (mPoints.empty())
        return;
    const auto [low, high] = std::ranges::minmax_element(mPoints, {}, &Point::altitude);
    mLow = low->altitude;
    mHigh = std::max(high->altitude, mLow + 1.0);
}

double ProfileStrip::timeAt(double x, double width) const
{
    if (isEmpty() || width <= 0.0)
        return 0.0;
    return mPoints.front().time + std::clamp(x / width, 0.0, 1.0) * (mPoints.back().time - mPoints.front().time);
}

double ProfileStrip::placeOf(double time, double width) const
{
    if (isEmpty())
        return 0.0;
    const double length = std::max(mPoints.back().time - mPoints.front().time, 1e-9);
    return std::clamp((time - mPoints.front().time) / length, 0.0, 1.0) * width;
}

/// Columns between two points are on the line between them, but for gaps.
void ProfileStrip::fill(int width)
{
    mColumns.assign(static_cast<std::size_t>(width), {});
    const auto add = [this, width](double place, double altitude) {
        Column& column = mColumns[static_cast<std::size_t>(std::clamp(static_cast<int>(place), 0, width - 1))];
        column = column.isKnown ? Column{std::min(column.low, altitude), std::max(column.high, altitude), true}
                                : Column{altitude, altitude, true};
    };
    for (std::size_t i = 0; i < mPoints.size(); ++i) {
        const double here = placeOf(mPoints[i].time, width);
        add(here, mPoints[i].altitude);
        if (i == 0 || mPoints[i].isGap)
            continue;
        const double before = placeOf(mPoints[i - 1].time, width);
        for (double place = std::floor(before) + 1.0; place < here; place += 1.0)
            add(place, mPoints[i - 1].altitude + (mPoints[i].altitude - mPoints[i - 1].altitude) * (place - before) / (here - before));
    }
}

void ProfileStrip::drawArea(Canvas& canvas, const QSizeF& size, const MapStyle& style) const
{
    const double scale = (size.height() - 2.0 * kPadding) / (mHigh - mLow);
    const auto y = [&](double altitude) { return size.height() - kPadding - (altitude - mLow) * scale; };
    const double from = mShown ? placeOf(mShown->start, size.width()) : 0.0, to = mShown ? placeOf(mShown->end, size.width()) : size.width();
    std::vector<QPointF> fill, line, rest;
    for (std::size_t i = 0; i < mColumns.size(); ++i) {
        if (!mColumns[i].isKnown)
            continue;
        const auto x = static_cast<double>(i);
        fill.insert(fill.end(), {{x, size.height()}, {x, y(mColumns[i].low)}});
        std::vector<QPointF>& part = x >= from && x <= to ? line : rest;
        part.insert(part.end(), {{x, y(mColumns[i].low) + 1.0}, {x, y(mColumns[i].high) - 1.0}});
    }
    QColor ground = style.colours.path;
    ground.setAlpha(45);
    canvas.lines(fill, {ground, 1.0});
    const QColor& veil = style.colours.textGround;
    canvas.fillRect({0, 0, from, size.height()}, veil);
    canvas.fillRect({to, 0, size.width() - to, size.height()}, veil);
    canvas.lines(rest, {style.colours.pathDim, 1.0});
    canvas.lines(line, {style.colours.path, 1.0});
}

void ProfileStrip::draw(Canvas& canvas, const QSizeF& size, double viewTime, const MapStyle& style)
{
    const int width = static_cast<int>(size.width());
    if (isEmpty() || width < 2)
        return;
    if (mColumns.size() != static_cast<std::size_t>(width))
        fill(width);
    drawArea(canvas, size, style);
    const CanvasText text{style.textSize, style.colours.label, false, Qt::AlignLeft | Qt::AlignTop};
    const auto label = [&](double altitude) {
        const QString number = PathLegend::number(altitude, mHigh - mLow);
        return mUnit.isEmpty() ? number : number + QLatin1Char(' ') + mUnit;
    };
    const double line = canvas.textSize(label(mHigh), text).height();
    for (const auto& [altitude, top] : {std::pair(mHigh, 1.0), std::pair(mLow, size.height() - line - 1.0)}) {
        canvas.fillRect({1.0, top, canvas.textSize(label(altitude), text).width() + 4.0, line}, style.colours.textGround);
        canvas.text({3.0, top}, label(altitude), text);
    }
    const double now = placeOf(viewTime, width);
    canvas.lines(std::array{QPointF(now, 0.0), QPointF(now, size.height())}, {style.colours.aircraft, 2.0});
}

} // namespace ZARN
