#include "ui/map/model/PathGeometry.h"

#include "openstreet/core/Clip.h"

#include <QRectF>

#include <cmath>

namespace ZARN {

namespace {

constexpr double kTolerance = 0.75; // pixels below which two points are one
constexpr double kCoarsest = 50.0;

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
    const Key key{path.generation(),  camera.width(),     camera.height(),  isSameScale ? mKey.metresPerPixel : camera.metresPerPixel(),
                  rounded(ofX.x), rounded(ofX.y), rounded(ofY.y)};
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
    QPointF before; // the last point that was kept
    bool isOpen = false;
    const std::vector<OpenStreet::WorldPoint>& world = path.world();
    for (std::size_t i = 0; i < world.size(); ++i) {
        const OpenStreet::WindowPoint at = camera.worldToWindowVector(world[i]);
        const QPointF here(at.x, at.y);
        const QPointF step = here - before;
        const bool isLast = i + 1 == world.size();
        if (i > 0 && !isLast && std::fabs(step.x()) < tolerance && std::fabs(step.y()) < tolerance)
            continue;
        QPointF from = before, to = here;
        if (i > 0 && OpenStreet::clipStretch(from, to, box)) {
            if (!isOpen || from != before)
                mStrips.push_back({from});
            mStrips.back().push_back(to);
            isOpen = to == here;
        } else {
            isOpen = false;
        }
        before = here;
    }
}

} // namespace ZARN
