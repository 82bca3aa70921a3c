#pragma once

#include "analysis/TimeSpan.h"
#include "ui/canvas/Canvas.h"
#include "ui/map/model/MapPath.h"
#include "ui/map/model/MapStyle.h"

#include <optional>

namespace ZARN {

/// The altitude along the path over its time, as a strip: the least and the greatest of each column of pixels, worked out once for a width.
class ProfileStrip {
public:
    /// @param unit of altitudes, for the labels; @param start of what was recorded: the path has points from power-up on
    void set(const MapPath& path, const QString& unit, double start);
    void setShown(const std::optional<TimeSpan>& span) { mShown = span; }
    [[nodiscard]] bool isEmpty() const { return mPoints.size() < 2; }

    void draw(Canvas& canvas, const QSizeF& size, double viewTime, const MapStyle& style);
    /// The time of a place of a strip so wide.
    [[nodiscard]] double timeAt(double x, double width) const;
    [[nodiscard]] double placeOf(double time, double width) const;

private:
    struct Point {
        double time, altitude;
        bool isGap; ///< nothing was received on the way there
    };
    struct Column {
        double low, high;
        bool isKnown = false;
    };
    void fill(int width);
    void drawArea(Canvas& canvas, const QSizeF& size, const MapStyle& style) const;

    std::vector<Point> mPoints;
    std::vector<Column> mColumns;
    std::optional<TimeSpan> mShown;
    QString mUnit;
    double mLow = 0.0, mHigh = 0.0;
};

} // namespace ZARN
