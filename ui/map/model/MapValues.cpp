#include "ui/map/model/MapValues.h"

#include "card/CardContainer.h"
#include "profile/Profile.h"

namespace ZARN {

std::vector<MapValue> MapValues::at(double time, bool hasRecord) const
{
    std::vector<MapValue> result;
    for (const auto& [device, parameter] : mSession.profile.model().parameters()) {
        if (!mSession.profile.isSelected(parameter.name))
            continue;
        if (result.size() == kMostRows)
            return result;
        MapValue row{QString::fromStdString(parameter.name), {}, {}, {}};
        if (hasRecord)
            fill(row, parameter, time);
        result.push_back(row);
    }
    return result;
}

void MapValues::fill(MapValue& row, const ProfileParameter& parameter, double time) const
{
    const CycleValues values = mSession.container.values();
    const std::optional<DisplayValue> value =
        mSession.container.isLive() ? values.receivedAt(parameter, time) : values.shownAt(parameter, time);
    row.text = QString::fromStdString(value ? value->text : "-");
    if (!value)
        return;
    row.colour = value->colour;
    row.state = value->state;
    row.unit = QString::fromStdString(mSession.profile.context().unitOf(parameter));
}

} // namespace ZARN
