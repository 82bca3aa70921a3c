#include "app/Setting.h"

#include "app/Property.h"

#include <algorithm>

namespace ZARN {

std::string TextSetting::get(const Property& settings) const
{
    return settings.getString(key, fallback);
}

bool TextSetting::isSet(const Property& settings) const
{
    return !settings.getString(key, {}).empty();
}

void TextSetting::set(Property& settings, const std::string& value) const
{
    settings.setString(key, value);
}

std::string NumberedSetting::get(const Property& settings, int number) const
{
    return settings.getString(key + std::to_string(number), {});
}

void NumberedSetting::set(Property& settings, int number, const std::string& value) const
{
    settings.setString(key + std::to_string(number), value);
}

bool SwitchSetting::get(const Property& settings) const
{
    return settings.getSwitch(key, fallback);
}

void SwitchSetting::set(Property& settings, bool value) const
{
    settings.setSwitch(key, value);
}

double FractionSetting::get(const Property& settings) const
{
    return settings.getDouble(key, fallback);
}

int NumberSetting::get(const Property& settings) const
{
    const int value = settings.getInt(key, fallback);
    const int nearest = std::clamp(value, least, most);
    return value == nearest || outside == EOutside::eNearest ? nearest : fallback;
}

void NumberSetting::set(Property& settings, int value) const
{
    settings.setInt(key, value);
}

} // namespace ZARN
