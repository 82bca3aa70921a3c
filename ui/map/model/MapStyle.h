#pragma once

#include "openstreet/core/BaseMap.h"
#include "ui/canvas/Palette.h"

#include <QSizeF>

namespace ZARN {

/// How a map is drawn, by what it is drawn on; lengths in pixels of the canvas.
struct MapStyle {
    Palette::Map colours = Palette::light().map;
    double textSize = 11.0;
    double pathWidth = 3.0;
    double gridWidth = 1.0;
    double gridSpacing = 130.0;
    double barLength = 140.0; ///< of the scale at most
    QSizeF tools{};           ///< what is covered of the left upper corner
    QSizeF sources{};         ///< the same of the right lower one

    [[nodiscard]] OpenStreet::BaseMap::Colours ground() const
    {
        return {colours.water.rgb(), colours.land.rgb(), colours.shore.rgb(), colours.river.rgb(), colours.country.rgb()};
    }

    [[nodiscard]] static MapStyle paper()
    {
        return {.colours = Palette::print().map, .textSize = 7.0, .pathWidth = 1.4, .gridWidth = 0.4, .gridSpacing = 90.0, .barLength = 120.0};
    }
};

} // namespace ZARN
