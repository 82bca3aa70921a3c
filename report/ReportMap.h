#pragma once

#include "card/LoadedCard.h"
#include "openstreet/core/BaseMap.h"
#include "openstreet/core/Camera.h"
#include "ui/map/model/MapPath.h"
#include "ui/map/model/MapScene.h"

class QPainter;

namespace ZARN {

class Canvas;
class EventList;

/// The flight path of the loaded cycle or flight on the map of the world that comes with the program, with lines of latitude and longitude.
class ReportMap {
public:
    /// @param loaded must outlive it
    explicit ReportMap(const LoadedCard& loaded);

    [[nodiscard]] bool isEmpty() const { return mPath.isEmpty(); }
    /// @param painter the one that the canvas draws on: outlines with holes are none of a canvas's shapes.
    void draw(QPainter& painter, Canvas& canvas, const QRectF& place, const EventList& limits);

private:
    void drawGround(QPainter& painter);
    void drawTile(QPainter& painter, const OpenStreet::BaseMap::Geometry& parts, const QRectF& tile) const;
    void drawGrid(Canvas& canvas) const;
    void drawPath(Canvas& canvas) const;
    void drawMarks(Canvas& canvas, const EventList& limits) const;
    [[nodiscard]] MapScaleBar scaleBar() const;
    void drawScale(Canvas& canvas) const;
    [[nodiscard]] QPointF windowPoint(const FlightPathPoint& point) const;

    const LoadedCard& mLoaded;
    MapPath mPath;
    OpenStreet::BaseMap mBaseMap;
    OpenStreet::Camera mCamera;
};

} // namespace ZARN
