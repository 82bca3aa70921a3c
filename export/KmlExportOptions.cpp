#include "export/KmlExportOptions.h"

#include "app/Property.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <limits>

namespace ZARN {

namespace {

template <typename Value> struct Setting {
    const char* key;
    Value KmlExportOptions::*value;
};

constexpr Setting<std::string> kDirectory = {"KmlExportDir", &KmlExportOptions::directory};

constexpr Setting<std::string> kColours[] = {
    {"KmlLineColor", &KmlExportOptions::lineColor},
    {"KmlPolygonColor", &KmlExportOptions::polygonColor},
    {"KmlPlaceMarkColor", &KmlExportOptions::placeMarkColor},
    {"KmlErrorMarkColor", &KmlExportOptions::errorMarkColor},
};

constexpr int kOpaque = 255;
constexpr int kMost = std::numeric_limits<int>::max();

struct Number : Setting<int> {
    int least;
    int most;
    const char* wanted;
};

constexpr Number kNumbers[] = {
    {{"KmlTimeStamp", &KmlExportOptions::timeStamp}, 1, kMost, "a number of seconds from 1 on"},
    {{"KmlLineWidth", &KmlExportOptions::lineWidth}, 0, kMost, "a width from 0 on"},
    {{"KmlLineAlpha", &KmlExportOptions::lineAlpha}, 0, kOpaque, "an opacity from 0 to 255"},
    {{"KmlPolygonAlpha", &KmlExportOptions::polygonAlpha}, 0, kOpaque, "an opacity from 0 to 255"},
    // Spelt so in every settings file there is.
    {{"KmlPlaceMarkIntervall", &KmlExportOptions::placeMarkInterval}, 1, kMost, "a number of path points from 1 on"},
};

constexpr Setting<bool> kSwitches[] = {
    {"KmlPolygonOn", &KmlExportOptions::polygonOn},     {"KmlPlaceMarkOn", &KmlExportOptions::placeMarkOn},
    {"KmlErrorMarkOn", &KmlExportOptions::errorMarkOn}, {"KmlShowLimit", &KmlExportOptions::showLimit},
    {"KmlShowWarning", &KmlExportOptions::showWarning},
};

/// The setting of that key; null when there is none.
template <std::size_t count, typename Entry> const Entry* find(const Entry (&settings)[count], const std::string& key)
{
    const auto found = std::ranges::find(settings, key, [](const Entry& setting) { return std::string(setting.key); });
    return found == std::end(settings) ? nullptr : found;
}

bool isColour(const std::string& text)
{
    return text.size() == 6 && text.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos;
}

} // namespace

void KmlExportOptions::read(const Property& settings)
{
    this->*kDirectory.value = settings.getString(kDirectory.key, this->*kDirectory.value);
    for (const auto& [key, value] : kColours) {
        const std::string colour = settings.getString(key, this->*value);
        if (isColour(colour))
            this->*value = colour;
    }
    for (const Number& number : kNumbers)
        this->*number.value = std::clamp(settings.getInt(number.key, this->*number.value), number.least, number.most);
    for (const auto& [key, value] : kSwitches)
        this->*value = settings.getSwitch(key, this->*value);
}

void KmlExportOptions::write(Property& settings) const
{
    settings.setString(kDirectory.key, this->*kDirectory.value);
    for (const auto& [key, value] : kColours)
        settings.setString(key, this->*value);
    for (const Number& number : kNumbers)
        settings.setInt(number.key, this->*number.value);
    for (const auto& [key, value] : kSwitches)
        settings.setSwitch(key, this->*value);
}

bool KmlExportOptions::isKey(const std::string& key)
{
    return key == kDirectory.key || find(kColours, key) || find(kNumbers, key) || find(kSwitches, key);
}

std::string KmlExportOptions::problem(const std::string& key, const std::string& value)
{
    if (find(kColours, key))
        return isColour(value) ? "" : key + ": must be a colour of six hexadecimal digits";
    const Number* pNumber = find(kNumbers, key);
    if (!pNumber)
        return {};
    const long long given = std::strtoll(value.c_str(), nullptr, 10);
    return given >= pNumber->least && given <= pNumber->most ? "" : key + ": must be " + pNumber->wanted;
}

} // namespace ZARN
