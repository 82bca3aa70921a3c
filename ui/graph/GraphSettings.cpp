#include "ui/graph/GraphSettings.h"

#include "app/Property.h"
#include "ui/graph/model/GraphModel.h"

namespace ZARN {

namespace {

constexpr auto kClickMovesCursor = "GraphClickMovesCursor";

std::string colourKey(const GraphModel& model, int slot)
{
    return model.parameter(slot)->colourKey.toStdString();
}

} // namespace

void GraphSettings::load(GraphModel& model, GraphData& data) const
{
    data.clickMovesCursor = mProperty.getSwitch(kClickMovesCursor, false);
    for (int slot = 0; slot < static_cast<int>(model.parameters().size()); ++slot) {
        const QColor colour(QString::fromStdString(mProperty.getString(colourKey(model, slot), "")));
        if (colour.isValid())
            model.setParameterColor(slot, colour.redF(), colour.greenF(), colour.blueF());
        else if (model.parameter(slot)->hasOwnColour)
            model.resetParameterColor(slot);
    }
    data.traces.clear();
    for (const int slot : model.shown()) {
        const GraphParameter& parameter = *model.parameter(slot);
        data.traces.push_back({slot, parameter.name, parameter.drawnColour, parameter.hasOwnColour});
    }
}

void GraphSettings::store(const GraphModel& model, const GraphData& data)
{
    bool isChanged = data.clickMovesCursor != mProperty.getSwitch(kClickMovesCursor, false);
    mProperty.setSwitch(kClickMovesCursor, data.clickMovesCursor);
    for (const TraceColour& trace : data.traces) {
        const std::string key = colourKey(model, trace.slot);
        const std::string value = trace.isOwn ? trace.colour.name().toStdString() : std::string();
        if (value == mProperty.getString(key, ""))
            continue;
        mProperty.setString(key, value);
        isChanged = true;
    }
    if (isChanged)
        mProperty.writeXmlFile();
}

} // namespace ZARN
