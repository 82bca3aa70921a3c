#pragma once

#include "card/LoadedCard.h"
#include "openstreet/core/BaseMap.h"
#include "ui/map/model/MapScene.h"

class QPainter;

namespace ZARN {

class EventList;

/// The flight path of the loaded cycle or flight on the map of the world that comes with the program: the scene of the map view on paper, with
/// marks that do not move.
class ReportMap {
public:
    /// @param loaded must outlive it
    ReportMap(const LoadedCard& loaded, const EventList& limits);

    [[nodiscard]] bool isEmpty() const { return mScene.path().isEmpty(); }
    /// @param painter the one that the canvas draws on: outlines with holes are none of a canvas's shapes.
    /// A place rather than a way, or nothing.
    [[nodiscard]] bool isSmall() const;
    void draw(QPainter& painter, Canvas& canvas, const QRectF& place);

private:
    void drawMarks(Canvas& canvas, const OpenStreet::Camera& camera) const;

    std::vector<double> mExceeded; ///< times at which a limit was exceeded
    MapScene mScene{MapStyle::paper()};
    OpenStreet::BaseMap mBaseMap;
};

} // namespace ZARN
