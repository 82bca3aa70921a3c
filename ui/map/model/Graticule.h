#pragma once

#include "openstreet/core/Camera.h"
#include "ui/canvas/Canvas.h"

#include <functional>

namespace ZARN {

/// Lines of latitude and longitude at whole degrees and minutes, or round parts of a minute, with their labels at the left and lower edges.
class Graticule {
public:
    /// @param spacing pixels between two lines at least
    Graticule(const OpenStreet::Camera& camera, double spacing);

    /// @param bottom of the longitudes' labels; below it there are none  @param covered of the left upper corner: latitudes' labels stand beside it
    /// @param isTaken where something else is written: a label that would stand there is left out
    void draw(Canvas& canvas, const CanvasPen& pen, const CanvasText& style, double bottom, const QSizeF& covered = {},
              const std::function<bool(const QRectF&)>& isTaken = [](const QRectF&) { return false; }) const;
    /// The distance of two lines in minutes.
    [[nodiscard]] double step() const { return mStep; }
    /// "48°05'N"; with the decimals of the minutes that lines so many minutes apart need.
    [[nodiscard]] static QString label(double degrees, double step, char positive, char negative);

private:
    const OpenStreet::Camera& mCamera;
    double mStep;
};

} // namespace ZARN
