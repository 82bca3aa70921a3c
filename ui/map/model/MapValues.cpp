#include "ui/map/model/MapValues.h"

#include "card/CardContainer.h"
#include "profile/Profile.h"

namespace ZARN {

std::vector<MapValue> MapValues::at(double time, bool hasRecord) const
{
    std::vector<MapValue> result;
    for (const ProfileDevice& device : mSession.profile.data()) {
        for (const ProfileParameter& parameter : device.parameters) {
            if (!mSession.profile.isSelected(parameter.name))
                continue;
            if (result.size() == kMostRows)
                return result;
            MapValue row{QString::fromStdString(parameter.name), {}, {}};
            if (hasRecord)
                fill(row, parameter, time);
            result.push_back(row);
        }
    }
    return result;
}

void MapValues::fill(MapValue& row, const ProfileParameter& parameter, double time) const
{
    const std::optional<DisplayValue> value = mSession.container.values().displayAt(parameter, time);
    row.text = QString::fromStdString(value ? value->text : "-");
    if (!value)
        return;
    row.colour = value->colour;
    if (const std::string& unit = mSession.profile.context().unitOf(parameter); !unit.empty())
        row.text += QLatin1String(" [") + QString::fromStdString(unit) + QLatin1Char(']');
}

} // namespace ZARN
