#include "vesk/gl/Strokes.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace VESK::OpenGL {

namespace {

constexpr int kMostDashes = 2000; // of one line: a line far longer than the view must not take memory without bound
constexpr int kJointCorners = 12;
constexpr double kMitreCosine = 0.5; // of the sharpest turn that is mitred: the corner stands out by a sixth of the half width then

bool isFinite(const QPointF& point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

double lengthOf(const QPointF& step)
{
    return std::hypot(step.x(), step.y());
}

VertexColour blend(const VertexColour& a, const VertexColour& b, double share)
{
    VertexColour out{};
    for (std::size_t i = 0; i < out.size(); ++i)
        out[i] = static_cast<uint8_t>(std::lround(a[i] + (b[i] - a[i]) * share));
    return out;
}

const VertexColour& colourAt(std::span<const VertexColour> colours, std::size_t i)
{
    return colours[std::min(i, colours.size() - 1)];
}

} // namespace

Strokes::Strokes(const LineStyle& style, double ratio)
    : mStyle(style), mRatio(ratio), mHalf(std::max(style.width, 1.0 / ratio) / 2), mReach(mHalf + (style.smooth ? 0.5 / ratio : 0.0))
{
}

void Strokes::addLine(const QPointF& from, const QPointF& to, const VertexColour& fromColour, const VertexColour& toColour, double offset)
{
    if (!isFinite(from) || !isFinite(to))
        return;
    const double length = lengthOf(to - from);
    const double period = 2 * mStyle.dash;
    if (mStyle.dash <= 0 || length / period > kMostDashes)
        return addPiece(from, to, fromColour, toColour);
    for (double at = -std::fmod(offset, period); at < length; at += period) {
        const double begin = std::max(at, 0.0) / length, end = std::min(at + mStyle.dash, length) / length;
        if (end > begin)
            addPiece(from + (to - from) * begin, from + (to - from) * end, blend(fromColour, toColour, begin),
                     blend(fromColour, toColour, end));
    }
}

void Strokes::addDashed(std::span<const QPointF> points, std::span<const VertexColour> colours)
{
    double length = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        addLine(points[i - 1], points[i], colourAt(colours, i - 1), colourAt(colours, i), length);
        const double step = lengthOf(points[i] - points[i - 1]);
        length += std::isfinite(step) ? step : 0.0;
    }
}

void Strokes::addStrip(std::span<const QPointF> points, std::span<const VertexColour> colours)
{
    if (mStyle.dash > 0)
        return addDashed(points, colours);
    std::optional<QPointF> mitred; // the corner at the beginning of the next line
    for (std::size_t i = 1; i < points.size(); ++i) {
        const QPointF &from = points[i - 1], &to = points[i];
        const VertexColour& colour = colourAt(colours, i);
        const std::optional<QPointF> begin = std::exchange(mitred, std::nullopt);
        if (!isFinite(from) || !isFinite(to))
            continue;
        const bool isLast = i + 1 == points.size() || !isFinite(points[i + 1]);
        if (!isLast)
            mitred = mitre(from, to, points[i + 1]);
        // Thin lines cover the pixels that both their ends name.
        const QPointF plain = side(from, to);
        const QPointF cap = mStyle.width <= 1 ? QPointF(plain.y(), -plain.x()) * (mHalf / mReach) : QPointF();
        addPiece({begin ? from : from - cap, begin.value_or(plain), colourAt(colours, i - 1)},
                 {mitred ? to : to + cap, mitred.value_or(plain), colour});
        if (!isLast && !mitred)
            addJoint(to, colour);
    }
}

void Strokes::addPiece(const QPointF& from, const QPointF& to, const VertexColour& fromColour, const VertexColour& toColour)
{
    const QPointF across = side(from, to);
    const QPointF cap = mStyle.width <= 1 && mStyle.dash <= 0 ? QPointF(across.y(), -across.x()) * (mHalf / mReach) : QPointF();
    addPiece({from - cap, across, fromColour}, {to + cap, across, toColour});
}

void Strokes::addPiece(const End& from, const End& to)
{
    const Vertex a1 = vertex(from.point + from.side, mReach, from.colour), a2 = vertex(from.point - from.side, -mReach, from.colour);
    const Vertex b1 = vertex(to.point + to.side, mReach, to.colour), b2 = vertex(to.point - to.side, -mReach, to.colour);
    mTriangles.insert(mTriangles.end(), {a1, a2, b1, a2, b2, b1});
}

void Strokes::addJoint(const QPointF& point, const VertexColour& colour)
{
    if (mStyle.width * mRatio <= 1.5)
        return;
    const Vertex centre = vertex(point, 0, colour);
    const auto rim = [&](int corner) {
        const double angle = 2 * M_PI * corner / kJointCorners;
        return vertex(point + QPointF(std::cos(angle), std::sin(angle)) * mReach, mReach, colour);
    };
    for (int corner = 0; corner < kJointCorners; ++corner)
        mTriangles.insert(mTriangles.end(), {centre, rim(corner), rim(corner + 1)});
}

std::optional<QPointF> Strokes::mitre(const QPointF& before, const QPointF& at, const QPointF& after) const
{
    const double first = lengthOf(at - before), second = lengthOf(after - at);
    if (!(std::min(first, second) > mReach))
        return std::nullopt;
    const QPointF in = (at - before) / first, out = (after - at) / second;
    const double cosine = QPointF::dotProduct(in, out);
    if (cosine < kMitreCosine)
        return std::nullopt;
    const QPointF along = in + out; // of length 2 cos(half the turn), square of that: 2 + 2 cos(the turn)
    return QPointF(-along.y(), along.x()) * (mReach / (1 + cosine));
}

QPointF Strokes::side(const QPointF& from, const QPointF& to) const
{
    const QPointF step = to - from;
    const double length = lengthOf(step);
    return length > 0 ? QPointF(-step.y(), step.x()) * (mReach / length) : QPointF(0, mReach);
}

Vertex Strokes::vertex(const QPointF& at, double distance, const VertexColour& colour) const
{
    const QPointF place = at + QPointF(0.5, 0.5);
    const double across = mStyle.smooth ? distance * mRatio : 0.0, edge = mStyle.smooth ? mHalf * mRatio : static_cast<double>(kUnsmoothed);
    return {static_cast<float>(place.x()), static_cast<float>(place.y()), static_cast<float>(across), static_cast<float>(edge), colour};
}

} // namespace VESK::OpenGL
