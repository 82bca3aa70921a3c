#include "ui/map/model/MapNavigator.h"

#include "ui/map/model/MapCorners.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace ZARN {

namespace {

constexpr double kSmallestFit = 300.0; // metres; closer, the view of a standing aircraft would show nothing but the receiver's noise
constexpr double kMarkRoom = 4.0;      // pixels beside what covers the map, for the marks at the ends of a path
constexpr double kSmallStep = 60.0;    // pixels; a following view does not ease steps below it, so that it does not lag behind

} // namespace

OpenStreet::Camera MapNavigator::target() const
{
    OpenStreet::Camera target = mCamera;
    target.setPosition({mContext.centreLatitude, mContext.centreLongitude});
    target.setVisibleRange(mContext.rangeHorizontal, mContext.rangeVertical);
    return target;
}

void MapNavigator::setTarget(const OpenStreet::Camera& target)
{
    mContext.centreLatitude = target.position().latitude;
    mContext.centreLongitude = target.position().longitude;
    mContext.rangeHorizontal = target.horizontalRange();
    mContext.rangeVertical = target.horizontalRange() * target.height() / target.width();
    mContext.isPositionChanged = true;
    mContext.isRangeChanged = true;
}

void MapNavigator::setWindowSize(int width, int height)
{
    mCamera.setWindowSize(width, height);
    mCamera.setVisibleRange(mCamera.horizontalRange(), mCamera.horizontalRange() * mCamera.height() / mCamera.width());
    mContext.rangeVertical = mContext.rangeHorizontal * mCamera.height() / mCamera.width();
}

bool MapNavigator::setCovered(std::vector<QRectF> covers)
{
    return std::exchange(mCovers, std::move(covers)) != mCovers;
}

void MapNavigator::fit(const MapPath& path, bool atOnce)
{
    const QSizeF window(mCamera.width(), mCamera.height());
    QRectF area(QPointF(), window);
    MapFit fit = path.fit(mCamera.width(), mCamera.height());
    double scale = std::numeric_limits<double>::max(); // metres of a pixel
    for (const QRectF& free : mCovers.empty() ? std::vector{area} : MapCorners::freeAreas(window, mCovers)) {
        const double room = mCovers.empty() ? 0.0 : std::min({kMarkRoom, 0.25 * free.width(), 0.25 * free.height()});
        const QRectF inside = free.adjusted(room, room, -room, -room);
        const MapFit here = path.fit(std::max(static_cast<int>(inside.width()), 1), std::max(static_cast<int>(inside.height()), 1));
        const double metres = std::max(here.range, kSmallestFit) / inside.width();
        if (metres < scale) { // of equal ones the first is the largest
            scale = metres;
            fit = here;
            area = inside;
        }
    }
    mContext.centreLatitude = fit.latitude;
    mContext.centreLongitude = fit.longitude;
    mContext.rangeHorizontal = path.isEmpty() ? 0.0 : scale * mCamera.width();
    mContext.rangeVertical = mContext.rangeHorizontal * mCamera.height() / mCamera.width();
    mContext.isPositionChanged = true;
    mContext.isRangeChanged = true;
    const QPointF aside = QRectF(QPointF(), window).center() - area.center();
    if (!path.isEmpty() && !aside.isNull()) {
        OpenStreet::Camera goal = target();
        goal.setWorld(goal.windowToWorld({0.5 * window.width() + aside.x(), 0.5 * window.height() + aside.y()}), goal.metresPerPixel());
        setTarget(goal);
    }
    mIsFitted = true;
    if (mContext.centreAircraft != 0)
        mContext.centreAircraft = 2;
    if (atOnce)
        mCamera = target();
}

bool MapNavigator::isShown(const FlightPathPoint& point) const
{
    const OpenStreet::WindowPoint place = target().geoToWindow({point.latitude, point.longitude});
    const QPointF here(place.x, place.y);
    return QRectF(0, 0, mCamera.width(), mCamera.height()).contains(here) &&
           std::ranges::none_of(mCovers, [&here](const QRectF& cover) { return cover.contains(here); });
}

/// From now on the view no longer shows the whole path, and a following view keeps the aircraft in the middle.
void MapNavigator::leaveFit()
{
    mIsFitted = false;
    mContext.centreAircraft = std::min(mContext.centreAircraft, 1);
}

void MapNavigator::zoomAboutMiddle(double factor)
{
    zoomBy(factor, {0.5 * mCamera.width(), 0.5 * mCamera.height()});
    if (mContext.centreAircraft != 1 || !mAircraft)
        return;
    OpenStreet::Camera goal = target();
    goal.setWorld(goal.projection().toWorld(*mAircraft), goal.metresPerPixel());
    setTarget(goal);
}

void MapNavigator::zoomCentered(double range)
{
    leaveFit();
    mCamera.zoomAbout(mPointer, std::clamp(range, OpenStreet::Camera::kSmallestRange, kFarthest));
    setTarget(mCamera);
}

void MapNavigator::zoomBy(double factor, const OpenStreet::WindowPoint& point)
{
    if (!(factor > 0.0) || !std::isfinite(factor))
        return;
    leaveFit();
    OpenStreet::Camera goal = target();
    const OpenStreet::GeoPoint place = mCamera.windowToGeo(point);
    const double range = std::clamp(goal.horizontalRange() * factor, kClosest, kFarthest);
    goal.setVisibleRange(range, range * goal.height() / goal.width());
    goal.putUnder(point, place);
    setTarget(goal);
}

void MapNavigator::doubleClick()
{
    leaveFit();
    const double half = std::clamp(mCamera.horizontalRange() * 0.5, kClosest, kFarthest);
    OpenStreet::Camera goal = mCamera;
    goal.zoomAbout(mPointer, half * 0.5);
    setTarget(goal);
}

void MapNavigator::drag(double right, double down)
{
    leaveFit();
    const OpenStreet::WindowPoint middle{0.5 * mCamera.width() - right, 0.5 * mCamera.height() - down};
    mCamera.setWorld(mCamera.windowToWorld(middle), mCamera.metresPerPixel());
    setTarget(mCamera);
}

void MapNavigator::pan(double right, double down)
{
    leaveFit();
    OpenStreet::Camera goal = target();
    goal.setWorld(goal.windowToWorld({0.5 * goal.width() + right, 0.5 * goal.height() + down}), goal.metresPerPixel());
    setTarget(goal);
}

void MapNavigator::turn(double aboutX, double aboutY)
{
    const double limit = OpenStreet::Camera::kSteepestAngle;
    mContext.angleX = std::clamp(mContext.angleX + aboutX, -limit, limit);
    mContext.angleY = std::clamp(mContext.angleY + aboutY, -limit, limit);
    mCamera.setAngles(mContext.angleX, mContext.angleY);
}

void MapNavigator::straighten()
{
    mContext.angleX = 0.0;
    mContext.angleY = 0.0;
    mCamera.setAngles(0.0, 0.0);
}

void MapNavigator::follow(double latitude, double longitude)
{
    mAircraft = {latitude, longitude};
    if (mContext.centreAircraft != 1)
        return;
    const OpenStreet::Projection& projection = mCamera.projection();
    OpenStreet::Camera goal = target();
    goal.setWorld(projection.toWorld({latitude, longitude}), goal.metresPerPixel());
    const OpenStreet::WindowPoint at = mCamera.geoToWindow({latitude, longitude});
    const double distance = std::hypot(at.x - 0.5 * mCamera.width(), at.y - 0.5 * mCamera.height());
    const bool isSmallStep = !isMoving() && distance < kSmallStep;
    setTarget(goal);
    if (isSmallStep)
        mCamera = goal; // where it shall be: the next tick has nothing left to do
}

bool MapNavigator::tick(double seconds)
{
    if (!isMoving())
        return false;
    const bool goesOn = OpenStreet::approach(mCamera, target(), seconds);
    mContext.isPositionChanged = goesOn;
    mContext.isRangeChanged = goesOn;
    return goesOn;
}

} // namespace ZARN
