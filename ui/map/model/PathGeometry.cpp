#include "ui/map/model/PathGeometry.h"

#include "openstreet/core/Clip.h"

#include <QRectF>

#include <cmath>

namespace ZARN {

namespace {

constexpr double kTolerance = 0.3; // pixels by which what is drawn may lie beside the path
constexpr double kCoarsest = 50.0;

double cross(const QPointF& a, const QPointF& b)
{
    return a.x() * b.y() - a.y() * b.x();
}

/// Points that can be left out because the line between their neighbours passes close by them. Looks at each point once: from the last
/// point kept, those that come after open a cone which the line has to stay in.
class Simplifier {
public:
    explicit Simplifier(double tolerance) : mTolerance(tolerance) {}

    void start(const QPointF& point)
    {
        mFrom = mLast = point;
        mFarthest = 0.0;
        mIsOpen = true;
    }
    /// @return whether the point before this one has to be kept; next() then goes on from there
    [[nodiscard]] bool isEnd(const QPointF& point)
    {
        const QPointF step = point - mFrom;
        const double distance = std::hypot(step.x(), step.y());
        if (distance < mFarthest - mTolerance) // turns back
            return true;
        const bool isNear = distance <= mTolerance;
        const QPointF along = isNear ? QPointF() : step / distance;
        if (!isNear && !mIsOpen && (cross(mRight, along) < 0.0 || cross(along, mLeft) < 0.0))
            return true;
        mFarthest = std::max(mFarthest, distance);
        mLast = point;
        if (!isNear)
            narrow(along, mTolerance / distance);
        return false;
    }
    /// Keeps the point before. @return it
    const QPointF& keep()
    {
        start(mLast);
        return mFrom;
    }

private:
    void narrow(const QPointF& along, double sine)
    {
        const double cosine = std::sqrt(1.0 - sine * sine);
        const QPointF left(along.x() * cosine - along.y() * sine, along.x() * sine + along.y() * cosine);
        const QPointF right(along.x() * cosine + along.y() * sine, along.y() * cosine - along.x() * sine);
        if (mIsOpen || cross(left, mLeft) > 0.0)
            mLeft = left;
        if (mIsOpen || cross(mRight, right) > 0.0)
            mRight = right;
        mIsOpen = false;
    }

    double mTolerance;
    QPointF mFrom;
    QPointF mLast;
    QPointF mLeft;
    QPointF mRight;
    double mFarthest = 0.0;
    bool mIsOpen = true; // no point has left the first one's surroundings yet
};

} // namespace

std::size_t PathGeometry::vertexCount() const
{
    std::size_t count = 0;
    for (const Strip& strip : mStrips)
        count += strip.size();
    return count;
}

void PathGeometry::update(const MapPath& path, const OpenStreet::Camera& camera)
{
    const OpenStreet::WindowPoint start = windowOrigin(camera, path.origin());
    mOffset = {start.x, start.y};
    const OpenStreet::WindowPoint ofX = camera.worldToWindowVector({camera.metresPerPixel(), 0.0});
    const OpenStreet::WindowPoint ofY = camera.worldToWindowVector({0.0, camera.metresPerPixel()});
    const auto rounded = [](double value) { return std::round(value * 1e9) / 1e9; };
    // The scale of a window that moves along a meridian changes by a hair; that is no reason to begin anew.
    const bool isSameScale = std::fabs(camera.metresPerPixel() / mKey.metresPerPixel - 1.0) < 1e-9;
    const Key key{path.generation(), camera.width(), camera.height(), isSameScale ? mKey.metresPerPixel : camera.metresPerPixel(),
                  rounded(ofX.x),    rounded(ofX.y), rounded(ofY.y)};
    const QPointF moved = mOffset - mBuiltOffset;
    if (key == mKey && std::fabs(moved.x()) <= camera.width() && std::fabs(moved.y()) <= camera.height())
        return;
    mKey = key;
    mBuiltOffset = mOffset;
    ++mBuilds;
    double tolerance = kTolerance;
    build(path, camera, tolerance);
    while (vertexCount() > kMaxVertices && tolerance < kCoarsest) {
        tolerance *= 2.0;
        build(path, camera, tolerance);
    }
}

void PathGeometry::build(const MapPath& path, const OpenStreet::Camera& camera, double tolerance)
{
    mStrips.clear();
    // A window's size around the window, so that the next moves find the strips long enough.
    const QRectF box(-mOffset.x() - camera.width(), -mOffset.y() - camera.height(), 3.0 * camera.width(), 3.0 * camera.height());
    const std::vector<OpenStreet::WorldPoint>& world = path.world();
    Simplifier simplifier(tolerance);
    QPointF before; // the last point kept
    bool isOpen = false;
    const auto keep = [&](const QPointF& here) {
        isOpen = addStretch(before, here, box, isOpen);
        before = here;
    };
    for (std::size_t i = 0; i < world.size(); ++i) {
        const OpenStreet::WindowPoint at = camera.worldToWindowVector(world[i]);
        const QPointF here(at.x, at.y);
        if (i == 0) {
            simplifier.start(here);
            before = here;
        } else if (simplifier.isEnd(here)) {
            keep(simplifier.keep());
            (void)simplifier.isEnd(here); // from the point just kept, the next one is never one too far
        }
        if (i > 0 && i + 1 == world.size())
            keep(here);
    }
}

bool PathGeometry::addStretch(QPointF from, QPointF to, const QRectF& box, bool isOpen)
{
    const QPointF begin = from, end = to;
    if (!OpenStreet::clipStretch(from, to, box))
        return false;
    if (!isOpen || from != begin)
        mStrips.push_back({from});
    mStrips.back().push_back(to);
    return to == end;
}

} // namespace ZARN
