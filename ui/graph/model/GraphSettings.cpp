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
    for (const int slot : model.traces().shown()) {
        const GraphParameter& trace = *model.traces().at(slot);
        const std::string name = trace.name.toStdString();
        isChanged |= trace.hasOwnColour ? setColour(colourNumber(slot, trace.name), trace.colour.name().toStdString(), name)
                                        : setColour(colourNumber(slot, trace.name), {}, {});
    }
    if (isChanged)
        mProperty.writeXmlFile();
}

std::string GraphSettings::colour(const std::string& name) const
{
    const std::optional<int> number = ownNumber(name);
    return number ? kColour.get(mProperty, *number) : std::string();
}

bool GraphSettings::setColour(const std::string& name, const std::string& colour)
{
    return setColour(ownNumber(name).value_or(freeNumber()), colour, colour.empty() ? std::string() : name);
}

std::optional<int> GraphSettings::ownNumber(const std::string& name) const
{
    for (int number = 0; number < kColour.count && !name.empty(); ++number) {
        if (kOwner.get(mProperty, number) == name)
            return number;
    }
    return std::nullopt;
}

int GraphSettings::colourNumber(int slot, const QString& name) const
{
    if (const std::optional<int> number = ownNumber(name.toStdString()))
        return *number;
    return kOwner.get(mProperty, slot).empty() ? slot : freeNumber(); // one without an owner is the slot's
}

int GraphSettings::freeNumber() const
{
    int number = 0;
    while (number < kColour.count && !kColour.get(mProperty, number).empty())
        ++number;
    return number;
}

bool GraphSettings::setColour(int number, const std::string& colour, const std::string& owner)
{
    if (colour == kColour.get(mProperty, number) && owner == kOwner.get(mProperty, number))
        return false;
    kColour.set(mProperty, number, colour);
    kOwner.set(mProperty, number, owner);
    return true;
}

} // namespace ZARN
