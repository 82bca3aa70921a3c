#include "ui/map/model/PathLegend.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kPadding = 6.0;
constexpr double kBar = 8.0;     // height of the scale
constexpr double kSwatch = 18.0; // width of a colour
constexpr double kLeast = 150.0; // pixels of a scale

} // namespace

QString PathLegend::number(double value, double range)
{
    const int decimals = range > 0.0 && range < 20.0 ? static_cast<int>(std::clamp(2.0 - std::floor(std::log10(range)), 0.0, 6.0)) : 0;
    return QString::number(value, 'f', decimals);
}

void PathLegend::draw(Canvas& canvas, const QPointF& corner) const
{
    if (!mTint.hasLegend())
        return;
    double width = canvas.textSize(mTint.title, text({})).width();
    for (const PathTint::Entry& entry : mTint.entries)
        width = std::max(width, kSwatch + kPadding + canvas.textSize(entry.text, text({})).width());
    if (mTint.isScale)
        width = std::max(width, kLeast);
    const double body = mTint.isScale ? kBar + line() : line() * static_cast<double>(mTint.entries.size());
    const QSizeF size(width + 2 * kPadding, line() + body + 2 * kPadding);
    const QRectF box(QPointF(corner.x() - size.width(), corner.y()), size);
    canvas.fillRect(box, mStyle.colours.textGround);
    const QRectF inner = box.adjusted(kPadding, kPadding, -kPadding, -kPadding);
    canvas.text(inner.topLeft(), mTint.title, text(Qt::AlignLeft | Qt::AlignTop));
    const QRectF rest = inner.adjusted(0, line(), 0, 0);
    mTint.isScale ? drawScale(canvas, rest) : drawEntries(canvas, rest);
}

void PathLegend::drawScale(Canvas& canvas, const QRectF& place) const
{
    const double step = place.width() / PathTint::kSteps;
    for (int i = 0; i < PathTint::kSteps; ++i)
        canvas.fillRect({place.left() + i * step, place.top(), step, kBar}, mTint.colours[static_cast<std::size_t>(i)]);
    const double range = mTint.high - mTint.low, top = place.top() + kBar + 2.0;
    canvas.text({place.left(), top}, number(mTint.low, range), text(Qt::AlignLeft | Qt::AlignTop));
    canvas.text({place.center().x(), top}, number(mTint.low + 0.5 * range, range), text(Qt::AlignHCenter | Qt::AlignTop));
    canvas.text({place.right(), top}, number(mTint.high, range), text(Qt::AlignRight | Qt::AlignTop));
}

void PathLegend::drawEntries(Canvas& canvas, const QRectF& place) const
{
    double top = place.top();
    for (const PathTint::Entry& entry : mTint.entries) {
        canvas.fillRect({place.left(), top + 0.5 * line() - 0.5 * kBar, kSwatch, 0.5 * kBar}, entry.colour);
        canvas.text({place.left() + kSwatch + kPadding, top}, entry.text, text(Qt::AlignLeft | Qt::AlignTop));
        top += line();
    }
}

} // namespace ZARN
