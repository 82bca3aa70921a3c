#include "vesk/gl/Strokes.h"

#include <algorithm>
#include <cmath>

namespace VESK::OpenGL {

namespace {

constexpr int kMostDashes = 2000; // of one line: a line far longer than the view must not take memory without bound
constexpr int kJointCorners = 12;

bool isFinite(const QPointF& point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

Vertex vertex(const QPointF& at, double distance, double halfWidth, const VertexColour& colour)
{
    return {static_cast<float>(at.x()), static_cast<float>(at.y()), static_cast<float>(distance), static_cast<float>(halfWidth), colour};
}

VertexColour blend(const VertexColour& a, const VertexColour& b, double share)
{
    VertexColour out{};
    for (std::size_t i = 0; i < out.size(); ++i)
        out[i] = static_cast<uint8_t>(std::lround(a[i] + (b[i] - a[i]) * share));
    return out;
}

} // namespace

void Strokes::addLine(const QPointF& from, const QPointF& to, const VertexColour& fromColour, const VertexColour& toColour, double offset)
{
    if (!isFinite(from) || !isFinite(to))
        return;
    const double length = std::hypot(to.x() - from.x(), to.y() - from.y());
    const double period = 2 * mStyle.dash;
    if (mStyle.dash <= 0 || length / period > kMostDashes)
        return addPiece(from, to, fromColour, toColour);
    for (double at = -std::fmod(offset, period); at < length; at += period) {
        const double begin = std::max(at, 0.0) / length, end = std::min(at + mStyle.dash, length) / length;
        if (end > begin)
            addPiece(from + (to - from) * begin, from + (to - from) * end, blend(fromColour, toColour, begin), blend(fromColour, toColour, end));
    }
}

void Strokes::addPiece(const QPointF& from, const QPointF& to, const VertexColour& fromColour, const VertexColour& toColour)
{
    const QPointF middle(0.5, 0.5);
    QPointF along = to - from;
    const double length = std::hypot(along.x(), along.y());
    along = length > 0 ? along / length : QPointF(1, 0);
    const double half = std::max(mStyle.width, 1.0 / mRatio) / 2;
    // Smooth lines get half a pixel of the screen more at each side, over which they fade.
    const double reach = half + (mStyle.smooth ? 0.5 / mRatio : 0.0);
    const double distance = mStyle.smooth ? reach * mRatio : 0.0, edge = mStyle.smooth ? half * mRatio : static_cast<double>(kUnsmoothed);
    const QPointF across(-along.y() * reach, along.x() * reach);
    // Thin lines cover the pixels that both their ends name.
    const QPointF cap = mStyle.width <= 1 && mStyle.dash <= 0 ? along * half : QPointF();
    const QPointF a = from + middle - cap, b = to + middle + cap;
    const Vertex a1 = vertex(a + across, distance, edge, fromColour), a2 = vertex(a - across, -distance, edge, fromColour);
    const Vertex b1 = vertex(b + across, distance, edge, toColour), b2 = vertex(b - across, -distance, edge, toColour);
    mTriangles.insert(mTriangles.end(), {a1, a2, b1, a2, b2, b1});
}

void Strokes::addJoint(const QPointF& point, const VertexColour& colour)
{
    if (!isFinite(point) || mStyle.width * mRatio <= 1.5 || mStyle.dash > 0)
        return;
    const double half = mStyle.width / 2, reach = half + (mStyle.smooth ? 0.5 / mRatio : 0.0);
    const double distance = mStyle.smooth ? reach * mRatio : 0.0, edge = mStyle.smooth ? half * mRatio : static_cast<double>(kUnsmoothed);
    const QPointF centre = point + QPointF(0.5, 0.5);
    const auto rim = [&](int corner) {
        const double angle = 2 * M_PI * corner / kJointCorners;
        return vertex(centre + QPointF(std::cos(angle), std::sin(angle)) * reach, distance, edge, colour);
    };
    for (int corner = 0; corner < kJointCorners; ++corner)
        mTriangles.insert(mTriangles.end(), {vertex(centre, 0, edge, colour), rim(corner), rim(corner + 1)});
}

} // namespace VESK::OpenGL
