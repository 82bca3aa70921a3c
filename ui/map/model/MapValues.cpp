#include "ui/map/model/MapValues.h"

#include "card/CardContainer.h"
#include "profile/Profile.h"

namespace ZARN {

std::vector<MapValue> MapValues::at(double time, bool hasRecord) const
{
    std::vector<MapValue> result;
    mSession.profile.resetCoordinates();
    for (const ProfileDevice& device : mSession.profile.data()) {
        for (const ProfileParameter& parameter : device.parameters) {
            if (!mSession.profile.isSelected(parameter.name))
                continue;
            if (result.size() == kMostRows)
                return result;
            MapValue row{QString::fromStdString(parameter.name), {}, {}};
            if (hasRecord) {
                int state = 0;
                row.text = QString::number(mSession.container.getValue(parameter, time, state, row.colour));
                if (!parameter.unit.empty())
                    row.text += QLatin1String(" [") + QString::fromStdString(parameter.unit) + QLatin1Char(']');
            }
            result.push_back(row);
        }
    }
    return result;
}

} // namespace ZARN
