#include "ui/map/model/Graticule.h"

#include "app/Numeric.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kBetween = 4.0;  // pixels between labels
constexpr double kMinutes = 60.0; // of a degree
constexpr double kFinest = 0.0001;
constexpr double kCoarse[] = {10, 30, 60, 120, 300, 600, 1800}; // minutes

double stepFor(double least)
{
    for (double power = kFinest; power < 10.0; power *= 10.0) {
        for (const double digit : {1.0, 2.0, 5.0}) {
            if (digit * power >= least)
                return digit * power;
        }
    }
    for (const double step : kCoarse) {
        if (step >= least)
            return step;
    }
    return kCoarse[std::size(kCoarse) - 1];
}

/// @param place of its left lower corner
QRectF labelBox(const Canvas& canvas, const QPointF& place, const QString& text, const CanvasText& style)
{
    const QSizeF size = canvas.textSize(text, style);
    return {place - QPointF(0.0, size.height()), size};
}

} // namespace

Graticule::Graticule(const OpenStreet::Camera& camera, double spacing)
    : mCamera(camera), mStep(stepFor(spacing * camera.metresPerPixel() / OpenStreet::Projection::kWorldWidth * 360.0 * kMinutes))
{
}

QString Graticule::label(double degrees, double step, char positive, char negative)
{
    const int decimals = std::max(0, -saturatingCast<int>(std::floor(std::log10(step) + 1e-9)));
    const double unit = std::pow(10.0, decimals);
    const auto total = saturatingCast<qint64>(std::round(std::fabs(degrees) * kMinutes * unit)),
               parts = saturatingCast<qint64>(60.0 * unit);
    const QString minutes = QString::number(static_cast<double>(total % parts) / unit, 'f', decimals)
                                .rightJustified(decimals > 0 ? 3 + decimals : 2, QLatin1Char('0'));
    return QString::number(total / parts) + QChar(0x00B0) + minutes + QLatin1Char('\'') + QLatin1Char(degrees < 0.0 ? negative : positive);
}

void Graticule::draw(Canvas& canvas, const CanvasPen& pen, const CanvasText& style, double bottom, const QSizeF& covered,
                     const std::function<bool(const QRectF&)>& isTaken) const
{
    const auto corner = [&](double x, double y) { return mCamera.projection().toGeo(mCamera.windowToWorld({x, y})); };
    OpenStreet::GeoPoint upper = corner(0.0, 0.0), lower = upper;
    for (const OpenStreet::GeoPoint& other :
         {corner(mCamera.width(), 0.0), corner(0.0, mCamera.height()), corner(mCamera.width(), mCamera.height())}) {
        upper = {std::max(upper.latitude, other.latitude), std::min(upper.longitude, other.longitude)};
        lower = {std::min(lower.latitude, other.latitude), std::max(lower.longitude, other.longitude)};
    }
    const auto point = [&](double latitude, double longitude) {
        const OpenStreet::WindowPoint at = mCamera.worldToWindow(mCamera.projection().toWorld({latitude, longitude}));
        return QPointF(at.x, at.y);
    };
    const double step = mStep / kMinutes;
    std::vector<QPointF> lines;
    double right = 0.0, above = bottom; // up to where there are labels already
    for (double longitude = std::ceil(upper.longitude / step) * step; longitude <= lower.longitude; longitude += step) {
        const QPointF top = point(upper.latitude, longitude);
        lines.insert(lines.end(), {top, point(lower.latitude, longitude)});
        const QString text = label(OpenStreet::foldLongitude(longitude), mStep, 'E', 'W');
        const QRectF box = labelBox(canvas, {top.x() + 3.0, bottom}, text, style);
        if (box.left() < right || box.right() > mCamera.width() || isTaken(box))
            continue;
        canvas.text(box.bottomLeft(), text, style);
        right = box.right() + kBetween;
    }
    for (double latitude = std::ceil(lower.latitude / step) * step; latitude <= upper.latitude; latitude += step) {
        const QPointF left = point(latitude, upper.longitude);
        lines.insert(lines.end(), {left, point(latitude, lower.longitude)});
        const QString text = label(latitude, mStep, 'N', 'S');
        if (left.y() >= above)
            continue;
        QRectF box = labelBox(canvas, {3.0, left.y() - 1.0}, text, style);
        above = box.top() + 1.0;
        if (above < covered.height())
            box.translate(covered.width(), 0.0);
        if (!isTaken(box))
            canvas.text(box.bottomLeft(), text, style);
    }
    canvas.lines(lines, pen);
}

} // namespace ZARN
