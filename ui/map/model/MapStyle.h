#pragma once

#include "ui/canvas/Palette.h"

namespace ZARN {

/// How a map is drawn, by what it is drawn on; lengths in pixels of the canvas.
struct MapStyle {
    Palette::Map colours = Palette::light().map;
    double textSize = 11.0;
    double pathWidth = 3.0;
    double gridWidth = 1.0;
    double gridSpacing = 130.0;
    double barLength = 140.0; ///< of the scale at most
    double legendTop = 8.0;   ///< from the upper edge to the legend

    [[nodiscard]] static MapStyle paper()
    {
        return {.colours = Palette::print().map, .textSize = 7.0, .pathWidth = 1.4, .gridWidth = 0.4, .gridSpacing = 90.0, .barLength = 120.0};
    }
};

} // namespace ZARN
