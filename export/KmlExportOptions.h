#pragma once

#include "analysis/TimeSpan.h"

#include <optional>
#include <string>

namespace ZARN {

class Property;

/// What the user chose for a KML export. Each value but the file name and the span has a key in the settings; texts are UTF-8.
struct KmlExportOptions {
    std::string directory = ".";
    std::string fileName;
    int timeStamp = 1; ///< seconds a path point
    int lineWidth = 1;
    std::string lineColor = "ff0000"; ///< colours are six hexadecimal digits, red, green, blue
    int lineAlpha = 255;              ///< opacities are 0..255
    bool polygonOn = true;            ///< extrude the path to the ground
    std::string polygonColor = "0000ff";
    int polygonAlpha = 100;
    bool placeMarkOn = true; ///< placemarks of the selected parameters
    int placeMarkInterval = 10; ///< path points a placemark
    std::string placeMarkColor = "ffcc00";
    bool errorMarkOn = true; ///< placemarks of limit exceedances and warning lamps
    bool showLimit = true;
    bool showWarning = true;
    std::string errorMarkColor = "ff0000";
    std::optional<TimeSpan> span = {}; ///< only path points and placemarks in it; none: the whole

    /// Takes over what the settings have; the rest stays, and so does a colour for one that is none. Numbers out of range are
    /// brought into it.
    void read(const Property& settings);
    void write(Property& settings) const;
    /// Whether the settings know a value of this export by that key.
    [[nodiscard]] static bool isKey(const std::string& key);
    /// What is wrong with a value for that key; empty when nothing is. Texts are taken for numbers as the settings take them.
    [[nodiscard]] static std::string problem(const std::string& key, const std::string& value);
};

} // namespace ZARN
