#include "ui/graph/GraphSettings.h"

#include "app/Property.h"
#include "ui/graph/model/GraphModel.h"

namespace ZARN {

namespace {

constexpr auto kClickMovesCursor = "GraphClickMovesCursor";
constexpr int kMostColours = 300;

std::string colourKey(int number)
{
    return "GraphColor" + std::to_string(number);
}

/// Whose the colour of that number is. Slots change their parameters as others come and go; a colour stays with its parameter.
std::string ownerKey(int number)
{
    return "GraphColorName" + std::to_string(number);
}

} // namespace

void GraphSettings::load(GraphModel& model, GraphData& data) const
{
    data.clickMovesCursor = mProperty.getSwitch(kClickMovesCursor, false);
    for (int slot = 0; slot < static_cast<int>(model.parameters().size()); ++slot) {
        const QColor colour(QString::fromStdString(mProperty.getString(colourKey(colourNumber(slot, model.parameter(slot)->name)), "")));
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

void GraphSettings::store(const GraphData& data)
{
    bool isChanged = data.clickMovesCursor != mProperty.getSwitch(kClickMovesCursor, false);
    mProperty.setSwitch(kClickMovesCursor, data.clickMovesCursor);
    for (const TraceColour& trace : data.traces)
        isChanged = storeColour(trace) || isChanged;
    if (isChanged)
        mProperty.writeXmlFile();
}

int GraphSettings::colourNumber(int slot, const QString& name) const
{
    const std::string wanted = name.toStdString();
    for (int number = 0; number < kMostColours && !wanted.empty(); ++number) {
        if (mProperty.getString(ownerKey(number), "") == wanted)
            return number;
    }
    if (mProperty.getString(ownerKey(slot), "").empty()) // one without an owner is the slot's
        return slot;
    int number = 0;
    while (number < kMostColours && !mProperty.getString(colourKey(number), "").empty())
        ++number;
    return number;
}

bool GraphSettings::storeColour(const TraceColour& trace)
{
    const int number = colourNumber(trace.slot, trace.name);
    const std::string value = trace.isOwn ? trace.colour.name().toStdString() : std::string();
    const std::string owner = trace.isOwn ? trace.name.toStdString() : std::string();
    if (value == mProperty.getString(colourKey(number), "") && owner == mProperty.getString(ownerKey(number), ""))
        return false;
    mProperty.setString(colourKey(number), value);
    mProperty.setString(ownerKey(number), owner);
    return true;
}

} // namespace ZARN
