#include "ui/graph/model/GraphSettings.h"

#include "app/Property.h"
#include "app/Settings.h"

namespace ZARN {

namespace {

constexpr const NumberedSetting& kColour = Settings::kGraphColor;
/// Whose the colour of that number is. Slots change their parameters as others come and go; a colour stays with its parameter.
constexpr const NumberedSetting& kOwner = Settings::kGraphColorName;

} // namespace

void GraphSettings::load(GraphModel& model) const
{
    model.settings().clickMovesCursor = Settings::kGraphClickMovesCursor.get(mProperty);
    for (int slot = 0; slot < static_cast<int>(model.traces().all().size()); ++slot) {
        const int number = colourNumber(slot, model.traces().at(slot)->name);
        model.traces().setColour(slot, QColor(kColour.text(mProperty, number)));
    }
}

void GraphSettings::store(const GraphModel& model)
{
    const bool clickMovesCursor = model.settings().clickMovesCursor;
    bool isChanged = clickMovesCursor != Settings::kGraphClickMovesCursor.get(mProperty);
    Settings::kGraphClickMovesCursor.set(mProperty, clickMovesCursor);
    for (const int slot : model.traces().shown())
        isChanged = storeColour(slot, *model.traces().at(slot)) || isChanged;
    if (isChanged)
        mProperty.writeXmlFile();
}

int GraphSettings::colourNumber(int slot, const QString& name) const
{
    const std::string wanted = name.toStdString();
    for (int number = 0; number < kColour.count && !wanted.empty(); ++number) {
        if (kOwner.get(mProperty, number) == wanted)
            return number;
    }
    if (kOwner.get(mProperty, slot).empty()) // one without an owner is the slot's
        return slot;
    int number = 0;
    while (number < kColour.count && !kColour.get(mProperty, number).empty())
        ++number;
    return number;
}

bool GraphSettings::storeColour(int slot, const GraphParameter& trace)
{
    const int number = colourNumber(slot, trace.name);
    const std::string value = trace.hasOwnColour ? trace.colour.name().toStdString() : std::string();
    const std::string owner = trace.hasOwnColour ? trace.name.toStdString() : std::string();
    if (value == kColour.get(mProperty, number) && owner == kOwner.get(mProperty, number))
        return false;
    kColour.set(mProperty, number, value);
    kOwner.set(mProperty, number, owner);
    return true;
}

} // namespace ZARN
