#pragma once

#include "analysis/TimeSpan.h"
#include "app/Settings.h"

#include <optional>
#include <string>
#include <vector>

namespace ZARN {

class Property;

/// What the user chose for a KML export. Each value but the file name and the span has a key in the settings; texts are UTF-8.
struct KmlExportOptions {
    std::string directory = Settings::kKmlExportDir.fallback;
    std::string fileName;
    int timeStamp = Settings::kKmlTimeStamp.fallback; ///< seconds a path point
    int lineWidth = Settings::kKmlLineWidth.fallback;
    std::string lineColor = Settings::kKmlLineColor.fallback; ///< colours are six hexadecimal digits, red, green, blue
    int lineAlpha = Settings::kKmlLineAlpha.fallback;         ///< opacities are 0..255
    bool polygonOn = Settings::kKmlPolygonOn.fallback;        ///< extrude the path to the ground
    std::string polygonColor = Settings::kKmlPolygonColor.fallback;
    int polygonAlpha = Settings::kKmlPolygonAlpha.fallback;
    bool placeMarkOn = Settings::kKmlPlaceMarkOn.fallback;            ///< placemarks of the selected parameters
    int placeMarkInterval = Settings::kKmlPlaceMarkInterval.fallback; ///< path points a placemark
    std::string placeMarkColor = Settings::kKmlPlaceMarkColor.fallback;
    bool errorMarkOn = Settings::kKmlErrorMarkOn.fallback; ///< placemarks of limit exceedances and warning lamps
    bool showLimit = Settings::kKmlShowLimit.fallback;
    bool showWarning = Settings::kKmlShowWarning.fallback;
    std::string errorMarkColor = Settings::kKmlErrorMarkColor.fallback;
    std::optional<TimeSpan> span = {}; ///< only path points and placemarks in it; none: the whole

    /// Takes over what the settings have, or their defaults; a colour stays for one that is none. Numbers out of range are brought
    /// into it.
    void read(const Property& settings);
    void write(Property& settings) const;
    /// The keys by which the settings know the values of this export.
    [[nodiscard]] static std::vector<std::string> keys();
    /// What is wrong with a value for that key; empty when nothing is. Texts are taken for numbers as the settings take them.
    [[nodiscard]] static std::string problem(const std::string& key, const std::string& value);
};

} // namespace ZARN
