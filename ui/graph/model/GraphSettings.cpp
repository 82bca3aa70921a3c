#include "ui/graph/model/GraphSettings.h"

#include "app/Property.h"

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

void GraphSettings::load(GraphModel& model) const
{
    model.settings().clickMovesCursor = mProperty.getSwitch(kClickMovesCursor, false);
    for (int slot = 0; slot < static_cast<int>(model.traces().all().size()); ++slot) {
        const int number = colourNumber(slot, model.traces().at(slot)->name);
        model.traces().setColour(slot, QColor(QString::fromStdString(mProperty.getString(colourKey(number), ""))));
    }
}

void GraphSettings::store(const GraphModel& model)
{
    const bool clickMovesCursor = model.settings().clickMovesCursor;
    bool isChanged = clickMovesCursor != mProperty.getSwitch(kClickMovesCursor, false);
    mProperty.setSwitch(kClickMovesCursor, clickMovesCursor);
    for (const int slot : model.traces().shown())
        isChanged = storeColour(slot, *model.traces().at(slot)) || isChanged;
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

bool GraphSettings::storeColour(int slot, const GraphParameter& trace)
{
    const int number = colourNumber(slot, trace.name);
    const std::string value = trace.hasOwnColour ? trace.colour.name().toStdString() : std::string();
    const std::string owner = trace.hasOwnColour ? trace.name.toStdString() : std::string();
    if (value == mProperty.getString(colourKey(number), "") && owner == mProperty.getString(ownerKey(number), ""))
        return false;
    mProperty.setString(colourKey(number), value);
    mProperty.setString(ownerKey(number), owner);
    return true;
}

} // namespace ZARN
