#pragma once

#include "openstreet/core/Camera.h"
#include "ui/map/model/MapContext.h"
#include "ui/map/model/MapPath.h"

#include <QRectF>

#include <optional>
#include <vector>

namespace ZARN {

/// Moves the map's camera as the user, the replay and a new path ask. The shared context says where the view shall be, the
/// camera where it is; tick() brings the one to the other.
class MapNavigator {
public:
    static constexpr double kClosest = 50.0; ///< metres; a double click goes in to half of it
    static constexpr double kFarthest = 7e7;

    explicit MapNavigator(MapContext& context) : mContext(context) {}

    [[nodiscard]] const OpenStreet::Camera& camera() const { return mCamera; }
    void setWindowSize(int width, int height);
    /// What lies on the map, in pixels of the window: a fitted path stays clear of it where there is room.
    /// @return whether it is anything else than before
    bool setCovered(std::vector<QRectF> covers);

    /// Shows the whole path. @param atOnce without moving there: for another path, that may lie anywhere.
    void fit(const MapPath& path, bool atOnce);
    /// Whether the view neither was moved by the user since nor goes with the aircraft.
    [[nodiscard]] bool isHeldToFit() const { return mIsFitted && mContext.centreAircraft != 1; }
    /// Whether a point lies where nothing covers the map.
    [[nodiscard]] bool isShown(const FlightPathPoint& point) const;
    /// Whether the user has not moved the view since.
    [[nodiscard]] bool isFitted() const { return mIsFitted; }
    /// The point of the window about which is zoomed.
    void setPointer(const OpenStreet::WindowPoint& point) { mPointer = point; }
    /// At once to a range in metres; what lies under the pointer stays there.
    void zoomCentered(double range);
    /// Moves to a range that many times the one that the view is moving to; what lies under the pointer stays there.
    void zoomBy(double factor) { zoomBy(factor, mPointer); }
    /// The same about the middle, which a view that follows has at the aircraft.
    void zoomAboutMiddle(double factor);
    /// Towards the pointer by a quarter of the range.
    void doubleClick();
    /// At once: the map follows the pointer by so many pixels.
    void drag(double right, double down);
    /// Moves the view by so many pixels over the map.
    void pan(double right, double down);
    /// Turns the map by degrees.
    void turn(double aboutX, double aboutY);
    /// Looks straight down again.
    void straighten();

    /// Whether the view follows the aircraft when its button is checked.
    void setFollowing(bool on) { mContext.centreAircraft = on ? 1 : 0; }
    [[nodiscard]] bool isFollowing() const { return mContext.centreAircraft != 0; }
    /// The aircraft has moved to a place: the view goes along if it follows.
    void follow(double latitude, double longitude);

    [[nodiscard]] bool isMoving() const { return mContext.isPositionChanged || mContext.isRangeChanged; }
    /// Brings the view closer to where it shall be. @return whether it is still moving.
    bool tick(double seconds);

private:
    void zoomBy(double factor, const OpenStreet::WindowPoint& point);
    [[nodiscard]] OpenStreet::Camera target() const;
    void setTarget(const OpenStreet::Camera& target);
    void leaveFit();

    MapContext& mContext;
    OpenStreet::Camera mCamera;
    OpenStreet::WindowPoint mPointer;
    std::vector<QRectF> mCovers;
    bool mIsFitted = false;
    std::optional<OpenStreet::GeoPoint> mAircraft; // where it was last
};

} // namespace ZARN
