#pragma once

#include "ui/canvas/Canvas.h"
#include "ui/map/model/MapCorners.h"
#include "ui/map/model/MapEvents.h"
#include "ui/map/model/MapMarks.h"
#include "ui/map/model/MapStyle.h"
#include "ui/map/model/PathGeometry.h"
#include "ui/map/model/PlaceLabels.h"

namespace ZARN {

/// A length on the ground that is drawn as a bar.
struct MapScaleBar {
    double metres = 0.0;
    double pixels = 0.0;
    QString text;

    /// The longest length of 1, 2 or 5 times a power of ten that takes at most so many pixels. @param imperial nautical miles and feet
    [[nodiscard]] static MapScaleBar at(const OpenStreet::Camera& camera, double pixels, bool imperial);
};

/// What is drawn above the ground of the map: lines of latitude and longitude, path, events, aircraft, scale bar, words for people. Drawing
/// changes nothing; update() comes before it.
class MapScene {
public:
    explicit MapScene(const MapStyle& style = {}) : mStyle(style) {}

    [[nodiscard]] MapPath& path() { return mPath; }
    [[nodiscard]] const MapPath& path() const { return mPath; }
    [[nodiscard]] MapEvents& events() { return mEvents; }
    [[nodiscard]] const MapEvents& events() const { return mEvents; }
    [[nodiscard]] const PathGeometry& geometry() const { return mGeometry; }
    [[nodiscard]] const MapMarks& marks() const { return mMarks; }
    [[nodiscard]] PlaceLabels& places() { return mPlaces; }
    [[nodiscard]] const PlaceLabels& places() const { return mPlaces; }
    /// The path of the whole cycle, of which path() is a part; shown dim. Empty where path() is all.
    void setWholePath(std::span<const FlightPathPoint> points) { mWhole.setPoints(points); }
    /// What is known of the cycle: marks, and where nothing was received.
    void setCourse(const CycleCourse& course, const std::vector<TimeSpan>& gaps);
    /// Colours for the points of path(), in its order. @return whether anything looks otherwise
    bool setTint(PathTint tint);
    /// The part of the path that is shown bright; none for all of it. @return whether it is another one
    bool setShown(const std::optional<TimeSpan>& span);
    /// The place of the window that is pointed at. @return whether anything else is told of it
    bool setPointer(const std::optional<QPointF>& place);
    /// A rectangle that is being drawn; none for none.
    void setSelection(const std::optional<QRectF>& area) { mSelection = area; }
    void setAircraft(const FlightPathPoint& point) { mAircraft = point; }
    [[nodiscard]] const FlightPathPoint& aircraft() const { return mAircraft; }
    /// Colours and sizes; what is changed shows with the next drawing.
    [[nodiscard]] MapStyle& style() { return mStyle; }
    void setImperial(bool on) { mIsImperial = on; }
    /// Lines of latitude and longitude and the names of places, for a map that shows little else.
    void setPlain(bool on) { mIsPlain = on; }
    /// Words for people above the scale bar, for example that the server does not answer; empty for none. @return whether it is another one.
    bool setNote(const QString& note);
    /// A word in the middle about what cannot be shown; empty for none.
    void setMessage(const QString& message) { mMessage = message; }

    /// Makes what is drawn for a camera.
    void update(const OpenStreet::Camera& camera);
    /// What changes with the view only: path and events.
    void drawGround(Canvas& canvas, const OpenStreet::Camera& camera) const;
    /// What moves above it, and what stands in the window's corners.
    void drawAbove(Canvas& canvas, const OpenStreet::Camera& camera) const;
    void drawScaleBar(Canvas& canvas, const OpenStreet::Camera& camera) const;
    /// What stands in the corners of a window, whether something is pointed at or not.
    [[nodiscard]] MapCorners corners(const QSizeF& window) const;
    /// The aircraft seen from above, pointing north, around the origin.
    [[nodiscard]] static std::span<const QPointF> aircraftOutline();

private:
    struct TextLine {
        double bottom = 0.0;
        QString text;
        bool isWhole = true; // it was not broken
    };

    void drawPath(Canvas& canvas) const;
    void drawRest(Canvas& canvas) const;
    void drawArrows(Canvas& canvas) const;
    void drawWrongFixes(Canvas& canvas, const OpenStreet::Camera& camera) const;
    void drawSelection(Canvas& canvas) const;
    void drawEvents(Canvas& canvas, const OpenStreet::Camera& camera) const;
    void drawAircraft(Canvas& canvas, const OpenStreet::Camera& camera) const;
    [[nodiscard]] std::vector<TextLine> linesAbove(const QSizeF& window, const QStringList& texts) const;
    [[nodiscard]] MapScaleBar scaleBar(const OpenStreet::Camera& camera) const;
    [[nodiscard]] double longestBar(const QSizeF& window) const;
    [[nodiscard]] double barBottom(const QSizeF& window) const;
    [[nodiscard]] double labelHeight() const { return 1.35 * mStyle.textSize; }
    void drawLabel(Canvas& canvas, const QPointF& position, const QString& text, Qt::Alignment align, double textSize) const;

    MapStyle mStyle;
    MapPath mPath;
    MapEvents mEvents;
    PathGeometry mGeometry;
    MapPath mWhole;
    PathGeometry mRest;
    PathTint mTint;
    int mTintGeneration = 0;
    std::optional<TimeSpan> mShown;
    MapMarks mMarks;
    PlaceLabels mPlaces;
    std::optional<QPointF> mPointer;
    std::optional<QRectF> mSelection;
    FlightPathPoint mAircraft{};
    QString mNote;
    QString mHeldPositions;
    QString mMessage;
    bool mIsImperial = false;
    bool mIsPlain = false;
};

} // namespace ZARN
