#include "export/KmlExportOptions.h"

#include "app/Property.h"

#include <algorithm>
#include <iterator>

namespace ZARN {

namespace {

template <typename Value> struct Setting {
    const char* key;
    Value KmlExportOptions::*value;
};

constexpr Setting<std::string> kTexts[] = {
    {"KmlExportDir", &KmlExportOptions::directory},           {"KmlLineColor", &KmlExportOptions::lineColor},
    {"KmlPolygonColor", &KmlExportOptions::polygonColor},     {"KmlPlaceMarkColor", &KmlExportOptions::placeMarkColor},
    {"KmlErrorMarkColor", &KmlExportOptions::errorMarkColor},
};

constexpr Setting<int> kNumbers[] = {
    {"KmlTimeStamp", &KmlExportOptions::timeStamp},
    {"KmlLineWidth", &KmlExportOptions::lineWidth},
    {"KmlLineAlpha", &KmlExportOptions::lineAlpha},
    {"KmlPolygonAlpha", &KmlExportOptions::polygonAlpha},
    {"KmlPlaceMarkIntervall", &KmlExportOptions::placeMarkInterval}, // spelt so in every settings file there is
};

constexpr Setting<bool> kSwitches[] = {
    {"KmlPolygonOn", &KmlExportOptions::polygonOn},     {"KmlPlaceMarkOn", &KmlExportOptions::placeMarkOn},
    {"KmlErrorMarkOn", &KmlExportOptions::errorMarkOn}, {"KmlShowLimit", &KmlExportOptions::showLimit},
    {"KmlShowWarning", &KmlExportOptions::showWarning},
};

} // namespace

void KmlExportOptions::read(const Property& settings)
{
    for (const auto& [key, value] : kTexts)
        this->*value = settings.getString(key, this->*value);
    for (const auto& [key, value] : kNumbers)
        this->*value = settings.getInt(key, this->*value);
    timeStamp = std::max(timeStamp, 1);
    placeMarkInterval = std::max(placeMarkInterval, 1);
    for (const auto& [key, value] : kSwitches)
        this->*value = settings.getSwitch(key, this->*value);
}

void KmlExportOptions::write(Property& settings) const
{
    for (const auto& [key, value] : kTexts)
        settings.setString(key, this->*value);
    for (const auto& [key, value] : kNumbers)
        settings.setInt(key, this->*value);
    for (const auto& [key, value] : kSwitches)
        settings.setSwitch(key, this->*value);
}

bool KmlExportOptions::isKey(const std::string& key)
{
    const auto isThis = [&key](const auto& setting) { return key == setting.key; };
    return std::any_of(std::begin(kTexts), std::end(kTexts), isThis) || std::any_of(std::begin(kNumbers), std::end(kNumbers), isThis) ||
           std::any_of(std::begin(kSwitches), std::end(kSwitches), isThis);
}

} // namespace ZARN
