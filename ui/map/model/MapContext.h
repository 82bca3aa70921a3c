#pragma once

namespace ZARN {

/// What the map panel and the map widget share: where the view is going, what moves it, and how large the overlays are. Owned by the panel.
struct MapContext {
    double centreLatitude = 0.0; ///< degrees
    double centreLongitude = 0.0;
    double rangeHorizontal = 0.0; ///< metres on the ground; 0: there is nothing to fit, the whole world is shown
    double rangeVertical = 0.0;
    double angleX = 0.0; ///< degrees; the view is turned about the x axis by it
    double angleY = 0.0; ///< and about the y axis by minus this
    bool isPositionChanged = false; ///< the view has not arrived at the centre yet
    bool isRangeChanged = false;    ///< nor at the range
    bool isLoading = false;         ///< tiles are on their way
    int centreAircraft = 2; ///< 0: the view stays; 1: the aircraft stays in the middle; 2: so it will, once the view no longer shows the whole path
    int scale = 1;          ///< of the overlays
};

} // namespace ZARN
