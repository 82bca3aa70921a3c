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
    return number ? mProperty.getString(colourKey(*number), "") : std::string();
}

bool GraphSettings::setColour(const std::string& name, const std::string& colour)
{
    return setColour(ownNumber(name).value_or(freeNumber()), colour, name);
}

std::optional<int> GraphSettings::ownNumber(const std::string& name) const
{
    for (int number = 0; number < kMostColours && !name.empty(); ++number) {
        if (mProperty.getString(ownerKey(number), "") == name)
            return number;
    }
    return std::nullopt;
}

int GraphSettings::colourNumber(int slot, const QString& name) const
{
    if (const std::optional<int> number = ownNumber(name.toStdString()))
        return *number;
    return mProperty.getString(ownerKey(slot), "").empty() ? slot : freeNumber(); // one without an owner is the slot's
}

int GraphSettings::freeNumber() const
{
    int number = 0;
    while (number < kMostColours && !mProperty.getString(colourKey(number), "").empty())
        ++number;
    return number;
}

bool GraphSettings::setColour(int number, const std::string& colour, const std::string& owner)
{
    if (colour == mProperty.getString(colourKey(number), "") && owner == mProperty.getString(ownerKey(number), ""))
        return false;
    mProperty.setString(colourKey(number), colour);
    mProperty.setString(ownerKey(number), owner);
    return true;
}

} // namespace ZARN
