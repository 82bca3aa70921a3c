#pragma once

#include "openstreet/core/Projection.h"

namespace OpenStreet {

/// A place in the window: pixels from its left upper corner, y down.
struct WindowPoint {
    double x = 0.0;
    double y = 0.0;
};

/// What of the map the window shows: the place in its middle, the extent on the ground, and two angles by which the flat map is
/// turned in space. A plain value; everything that it takes is held to what can be shown.
class Camera {
public:
    static constexpr double kSmallestRange = 25.0; ///< metres on the ground
    static constexpr double kLargestRange = 7e7;
    static constexpr double kSteepestAngle = 60.0; ///< degrees

    void setProjection(ProjectionType type);
    /// Logical pixels; sizes below 1 count as 1.
    void setWindowSize(int width, int height);
    /// The place in the middle of the window. What is not finite counts as 0.
    void setPosition(const GeoPoint& place);
    /// Extent in metres on the ground at the middle. Pixels are square: the whole of both extents is seen. A horizontal extent that is not
    /// above 0 shows the whole world; a vertical one that is not above 0 follows the horizontal one.
    void setVisibleRange(double horizontal, double vertical);
    /// Turns the map, in degrees, about the y axis by minus the second angle and then about the x axis by the first.
    void setAngles(double aboutX, double aboutY);

    [[nodiscard]] const Projection& projection() const { return mProjection; }
    [[nodiscard]] int width() const { return mWidth; }
    [[nodiscard]] int height() const { return mHeight; }
    [[nodiscard]] const GeoPoint& position() const { return mPosition; }
    [[nodiscard]] double horizontalRange() const { return mHorizontal; }
    [[nodiscard]] double verticalRange() const { return mVertical; }
    /// World metres in a pixel, where the map is not turned.
    [[nodiscard]] double metresPerPixel() const { return mMetresPerPixel; }
    /// Sets the middle and the scale in world metres instead of metres on the ground.
    void setWorld(const WorldPoint& middle, double metresPerPixel);

    [[nodiscard]] WorldPoint windowToWorld(const WindowPoint& point) const;
    [[nodiscard]] WindowPoint worldToWindow(const WorldPoint& point) const;
    /// The window's place of a displacement on the map, from the window's middle.
    [[nodiscard]] WindowPoint worldToWindowVector(const WorldPoint& step) const;
    [[nodiscard]] GeoPoint windowToGeo(const WindowPoint& point) const;
    /// Of the endless row of worlds side by side, the one whose place is nearest to the middle.
    [[nodiscard]] WindowPoint geoToWindow(const GeoPoint& place) const;

    /// Moves the middle so that the place lies under the window's point at the range that is set.
    void putUnder(const WindowPoint& point, const GeoPoint& place);
    /// Sets a range so that the place under the window's point stays there.
    void zoomAbout(const WindowPoint& point, double horizontal);

private:
    void updateScale();
    [[nodiscard]] WorldPoint windowVectorToWorld(double right, double up) const;

    Projection mProjection{ProjectionType::eMercator};
    int mWidth = 1;
    int mHeight = 1;
    GeoPoint mPosition;
    WorldPoint mMiddle;
    double mHorizontal = Projection::kWorldWidth;
    double mVertical = Projection::kWorldWidth;
    double mMetresPerPixel = Projection::kWorldWidth;
    double mCosX = 1.0, mSinX = 0.0, mCosY = 1.0, mSinY = 0.0;
};

/// Brings a camera closer to where it shall be, smoothly and by the clock, so that the pace is the same at any frame rate. A point
/// that keeps its place in the window from start to target keeps it on the way too.
/// @param seconds since the step before. @return false when the camera has arrived; it then stands exactly at the target.
bool approach(Camera& camera, const Camera& target, double seconds);

} // namespace OpenStreet
