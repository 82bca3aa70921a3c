#include "openstreet/core/Camera.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace OpenStreet {

namespace {

constexpr double kTimeConstant = 0.09; // seconds in which 63 % of the way are done
constexpr double kLongestStep = 0.05;  // seconds; after a pause the picture must not jump
constexpr double kArrived = 0.3;       // pixels

double finite(double value)
{
    return std::isfinite(value) ? value : 0.0;
}

} // namespace

void Camera::setProjection(ProjectionType type)
{
    mProjection = Projection(type);
    setPosition(mPosition);
}

void Camera::setWindowSize(int width, int height)
{
    mWidth = std::max(width, 1);
    mHeight = std::max(height, 1);
    updateScale();
}

void Camera::setPosition(const GeoPoint& place)
{
    const double limit = mProjection.maxLatitude();
    mPosition = {std::clamp(finite(place.latitude), -limit, limit), foldLongitude(place.longitude)};
    mMiddle = mProjection.toWorld(mPosition);
    updateScale();
}

void Camera::setVisibleRange(double horizontal, double vertical)
{
    mHorizontal = horizontal > 0.0 ? std::clamp(horizontal, kSmallestRange, kLargestRange) : Projection::kWorldWidth;
    mVertical = vertical > 0.0 ? std::clamp(vertical, 0.0, kLargestRange) : 0.0;
    updateScale();
}

void Camera::setAngles(double aboutX, double aboutY)
{
    const double x = std::clamp(finite(aboutX), -kSteepestAngle, kSteepestAngle) * std::numbers::pi / 180.0;
    const double y = std::clamp(finite(aboutY), -kSteepestAngle, kSteepestAngle) * std::numbers::pi / 180.0;
    mCosX = std::cos(x);
    mSinX = std::sin(x);
    mCosY = std::cos(y);
    mSinY = std::sin(y);
}

void Camera::setWorld(const WorldPoint& middle, double metresPerPixel)
{
    const GeoPoint place = mProjection.toGeo(middle);
    setPosition(place);
    const double horizontal = metresPerPixel * mWidth / mProjection.scaleAt(mPosition.latitude);
    setVisibleRange(horizontal, horizontal * mHeight / mWidth);
}

void Camera::updateScale()
{
    const double scale = mProjection.scaleAt(mPosition.latitude);
    mMetresPerPixel = std::max(mHorizontal / mWidth, mVertical / mHeight) * scale;
}

WorldPoint Camera::windowVectorToWorld(double right, double up) const
{
    const double x = right / mCosY;
    return {x * mMetresPerPixel, (up + mSinY * mSinX * x) / mCosX * mMetresPerPixel};
}

WindowPoint Camera::worldToWindowVector(const WorldPoint& step) const
{
    const double x = step.x / mMetresPerPixel;
    return {x * mCosY, -(step.y / mMetresPerPixel * mCosX - x * mSinY * mSinX)};
}

WorldPoint Camera::windowToWorld(const WindowPoint& point) const
{
    const WorldPoint step = windowVectorToWorld(point.x - 0.5 * mWidth, 0.5 * mHeight - point.y);
    return {mMiddle.x + step.x, mMiddle.y + step.y};
}

WindowPoint Camera::worldToWindow(const WorldPoint& point) const
{
    const WindowPoint step = worldToWindowVector({point.x - mMiddle.x, point.y - mMiddle.y});
    return {0.5 * mWidth + step.x, 0.5 * mHeight + step.y};
}

GeoPoint Camera::windowToGeo(const WindowPoint& point) const
{
    const GeoPoint place = mProjection.toGeo(windowToWorld(point));
    return {place.latitude, foldLongitude(place.longitude)};
}

WindowPoint Camera::geoToWindow(const GeoPoint& place) const
{
    WorldPoint point = mProjection.toWorld(place);
    point.x = mMiddle.x + std::remainder(point.x - mMiddle.x, Projection::kWorldWidth);
    return worldToWindow(point);
}

void Camera::putUnder(const WindowPoint& point, const GeoPoint& place)
{
    // The scale depends on the latitude of the middle, which depends on the scale: a few rounds settle both.
    constexpr int kRounds = 60;
    const WorldPoint wanted = mProjection.toWorld(place);
    for (int i = 0; i < kRounds; ++i) {
        const WorldPoint step = windowVectorToWorld(point.x - 0.5 * mWidth, 0.5 * mHeight - point.y);
        const WorldPoint before = mMiddle;
        setPosition(mProjection.toGeo({wanted.x - step.x, wanted.y - step.y}));
        if (std::fabs(std::remainder(mMiddle.x - before.x, Projection::kWorldWidth)) + std::fabs(mMiddle.y - before.y) < 1e-7)
            return;
    }
}

void Camera::zoomAbout(const WindowPoint& point, double horizontal)
{
    const GeoPoint place = windowToGeo(point);
    setVisibleRange(horizontal, horizontal * mHeight / mWidth);
    putUnder(point, place);
}

bool approach(Camera& camera, const Camera& target, double seconds)
{
    const double fraction = 1.0 - std::exp(-std::clamp(seconds, 0.0, kLongestStep) / kTimeConstant);
    const double from = camera.metresPerPixel();
    const double to = target.metresPerPixel();
    const WorldPoint start = camera.projection().toWorld(camera.position());
    WorldPoint way = target.projection().toWorld(target.position());
    way.x = std::remainder(way.x - start.x, Projection::kWorldWidth);
    way.y -= start.y;
    const double pixels = std::hypot(way.x, way.y) / std::min(from, to) + std::fabs(std::log(to / from)) * camera.width();
    if (!(pixels > kArrived)) {
        camera = target;
        return false;
    }
    const double scale = from * std::pow(to / from, fraction);
    // Where the middle moves in step with the scale, the point about which the window is zoomed stands still.
    const double share = std::fabs(to / from - 1.0) > 1e-3 ? (scale - from) / (to - from) : fraction;
    camera.setWorld({start.x + way.x * share, start.y + way.y * share}, scale);
    return true;
}

} // namespace OpenStreet
