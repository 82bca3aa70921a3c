#include "export/KmlExportOptions.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace ZARN {

namespace {

/// A setting and the option that it is kept for.
template <typename Setting, typename Value> struct Entry {
    const Setting& setting;
    Value KmlExportOptions::*value;
};

constexpr Entry<TextSetting, std::string> kDirectory = {Settings::kKmlExportDir, &KmlExportOptions::directory};

constexpr Entry<TextSetting, std::string> kColours[] = {
    {Settings::kKmlLineColor, &KmlExportOptions::lineColor},
    {Settings::kKmlPolygonColor, &KmlExportOptions::polygonColor},
    {Settings::kKmlPlaceMarkColor, &KmlExportOptions::placeMarkColor},
    {Settings::kKmlErrorMarkColor, &KmlExportOptions::errorMarkColor},
};

struct Number : Entry<NumberSetting, int> {
    const char* wanted;
};

constexpr Number kNumbers[] = {
    {{Settings::kKmlTimeStamp, &KmlExportOptions::timeStamp}, "a number of seconds from 1 on"},
    {{Settings::kKmlLineWidth, &KmlExportOptions::lineWidth}, "a width from 0 on"},
    {{Settings::kKmlLineAlpha, &KmlExportOptions::lineAlpha}, "an opacity from 0 to 255"},
    {{Settings::kKmlPolygonAlpha, &KmlExportOptions::polygonAlpha}, "an opacity from 0 to 255"},
    {{Settings::kKmlPlaceMarkInterval, &KmlExportOptions::placeMarkInterval}, "a number of path points from 1 on"},
};

constexpr Entry<SwitchSetting, bool> kSwitches[] = {
    {Settings::kKmlPolygonOn, &KmlExportOptions::polygonOn},     {Settings::kKmlPlaceMarkOn, &KmlExportOptions::placeMarkOn},
    {Settings::kKmlErrorMarkOn, &KmlExportOptions::errorMarkOn}, {Settings::kKmlShowLimit, &KmlExportOptions::showLimit},
    {Settings::kKmlShowWarning, &KmlExportOptions::showWarning},
};

/// The entry of that key; null when there is none.
template <std::size_t count, typename Entry> const Entry* find(const Entry (&entries)[count], const std::string& key)
{
    const auto found = std::ranges::find(entries, key, [](const Entry& entry) { return std::string(entry.setting.key); });
    return found == std::end(entries) ? nullptr : found;
}

bool isColour(const std::string& text)
{
    return text.size() == 6 && text.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos;
}

} // namespace

void KmlExportOptions::read(const Property& settings)
{
    directory = kDirectory.setting.get(settings);
    for (const auto& [setting, value] : kColours) {
        const std::string colour = setting.get(settings);
        if (isColour(colour))
            this->*value = colour;
    }
    for (const Number& number : kNumbers)
        this->*number.value = number.setting.get(settings);
    for (const auto& [setting, value] : kSwitches)
        this->*value = setting.get(settings);
}

void KmlExportOptions::write(Property& settings) const
{
    kDirectory.setting.set(settings, directory);
    for (const auto& [setting, value] : kColours)
        setting.set(settings, this->*value);
    for (const Number& number : kNumbers)
        number.setting.set(settings, this->*number.value);
    for (const auto& [setting, value] : kSwitches)
        setting.set(settings, this->*value);
}

std::vector<std::string> KmlExportOptions::keys()
{
    std::vector<std::string> keys = {kDirectory.setting.key};
    const auto add = [&keys](const auto& entries) {
        for (const auto& entry : entries)
            keys.emplace_back(entry.setting.key);
    };
    add(kColours);
    add(kNumbers);
    add(kSwitches);
    return keys;
}

std::string KmlExportOptions::problem(const std::string& key, const std::string& value)
{
    if (find(kColours, key))
        return isColour(value) ? "" : key + ": must be a colour of six hexadecimal digits";
    const Number* pNumber = find(kNumbers, key);
    if (!pNumber)
        return {};
    const long long given = std::strtoll(value.c_str(), nullptr, 10);
    return given >= pNumber->setting.least && given <= pNumber->setting.most ? "" : key + ": must be " + pNumber->wanted;
}

} // namespace ZARN
