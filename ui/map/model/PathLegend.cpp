#include "ui/map/model/PathLegend.h"

#include "ui/canvas/CanvasFont.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kPadding = 6.0;
constexpr double kBar = 8.0;     // height of the scale
constexpr double kSwatch = 18.0; // width of a colour
constexpr double kLeast = 150.0; // pixels of a scale
constexpr double kShortScale = 60.0; // on one line

} // namespace

QString PathLegend::number(double value, double range)
{
    const int decimals = range > 0.0 && range < 20.0 ? static_cast<int>(std::clamp(2.0 - std::floor(std::log10(range)), 0.0, 6.0)) : 0;
    return QString::number(value, 'f', decimals);
}

/// An end of the scale as the one line has it: the last with the unit.
QString PathLegend::end(double value, bool isLast) const
{
    const QString text = number(value, mTint.high - mTint.low);
    return isLast && !mTint.unit.isEmpty() ? text + QChar::Nbsp + mTint.unit : text;
}

double PathLegend::width(const QString& text) const
{
    return canvasTextSize(text, mStyle.textSize, false).width();
}

QSizeF PathLegend::size(EForm form) const
{
    if (!mTint.hasLegend())
        return {};
    const QSizeF around(2 * kPadding, 2 * kPadding);
    if (form == eLine && mTint.isScale)
        return around + QSizeF(width(end(mTint.low, false)) + width(end(mTint.high, true)) + 2 * kPadding + kShortScale, line());
    double widest = width(mTint.title), all = 0.0;
    for (const PathTint::Entry& entry : mTint.entries) {
        const double one = kSwatch + kPadding + width(entry.text);
        widest = std::max(widest, one);
        all += all > 0.0 ? 2 * kPadding + one : one;
    }
    if (form == eLine)
        return around + QSizeF(all, line());
    if (mTint.isScale)
        widest = std::max(widest, kLeast);
    return around + QSizeF(widest, line() + (mTint.isScale ? kBar + line() : line() * static_cast<double>(mTint.entries.size())));
}

void PathLegend::draw(Canvas& canvas, const QRectF& box, EForm form) const
{
    canvas.fillRect(box, mStyle.colours.textGround);
    const QRectF inner = box.adjusted(kPadding, kPadding, -kPadding, -kPadding);
    if (form == eLine)
        return mTint.isScale ? drawScaleLine(canvas, inner) : drawEntries(canvas, inner, form);
    canvas.text(inner.topLeft(), mTint.title, text(Qt::AlignLeft | Qt::AlignTop));
    const QRectF rest = inner.adjusted(0, line(), 0, 0);
    mTint.isScale ? drawScale(canvas, rest) : drawEntries(canvas, rest, form);
}

void PathLegend::drawBar(Canvas& canvas, const QRectF& place) const
{
    const double step = place.width() / PathTint::kSteps;
    for (int i = 0; i < PathTint::kSteps; ++i)
        canvas.fillRect({place.left() + i * step, place.top(), step, kBar}, mTint.colours[static_cast<std::size_t>(i)]);
}

void PathLegend::drawScale(Canvas& canvas, const QRectF& place) const
{
    drawBar(canvas, place);
    const double range = mTint.high - mTint.low, top = place.top() + kBar + 2.0;
    canvas.text({place.left(), top}, number(mTint.low, range), text(Qt::AlignLeft | Qt::AlignTop));
    canvas.text({place.center().x(), top}, number(mTint.low + 0.5 * range, range), text(Qt::AlignHCenter | Qt::AlignTop));
    canvas.text({place.right(), top}, number(mTint.high, range), text(Qt::AlignRight | Qt::AlignTop));
}

void PathLegend::drawScaleLine(Canvas& canvas, const QRectF& place) const
{
    const double middle = place.center().y();
    const QString low = end(mTint.low, false), high = end(mTint.high, true);
    canvas.text({place.left(), middle}, low, text(Qt::AlignLeft | Qt::AlignVCenter));
    canvas.text({place.right(), middle}, high, text(Qt::AlignRight | Qt::AlignVCenter));
    const double left = place.left() + width(low) + kPadding, right = place.right() - width(high) - kPadding;
    drawBar(canvas, {left, middle - 0.5 * kBar, right - left, kBar});
}

void PathLegend::drawEntries(Canvas& canvas, const QRectF& place, EForm form) const
{
    QPointF at = place.topLeft();
    for (const PathTint::Entry& entry : mTint.entries) {
        canvas.fillRect({at.x(), at.y() + 0.5 * line() - 0.5 * kBar, kSwatch, 0.5 * kBar}, entry.colour);
        canvas.text(at + QPointF(kSwatch + kPadding, 0.0), entry.text, text(Qt::AlignLeft | Qt::AlignTop));
        at += form == eLine ? QPointF(kSwatch + 3 * kPadding + width(entry.text), 0.0) : QPointF(0.0, line());
    }
}

} // namespace ZARN
