#include "ui/graph/model/GraphSettings.h"

#include "app/Property.h"
#include "app/Settings.h"

#include <algorithm>

namespace ZARN {

namespace {

constexpr const NumberedSetting& kColour = Settings::kGraphColor;
constexpr const NumberedSetting& kWidth = Settings::kGraphWidth;
constexpr const NumberedSetting& kStyle = Settings::kGraphStyle;
/// Whose the look of that number is. Slots change their parameters as others come and go; a look stays with its parameter.
constexpr const NumberedSetting& kOwner = Settings::kGraphColorName;

} // namespace

void GraphSettings::load(GraphModel& model) const
{
    GraphData& settings = model.settings();
    settings.clickMovesCursor = Settings::kGraphClickMovesCursor.get(mProperty);
    settings.gapsOn = Settings::kGraphGaps.get(mProperty);
    settings.normalOn = Settings::kGraphNormal.get(mProperty);
    // The one in force may have colours that were changed since.
    if (const auto palette = static_cast<EGraphPalette>(Settings::kGraphPalette.get(mProperty)); palette != settings.palette) {
        settings.usePalette(palette);
        model.settingsChanged();
    }
    for (int slot = 0; slot < static_cast<int>(model.traces().all().size()); ++slot) {
        const Look look = this->look(lookNumber(slot, model.traces().at(slot)->name));
        model.traces().setColour(slot, QColor(QString::fromStdString(look.colour)));
        model.traces().edit(slot, [&look](GraphParameter& trace) { trace.stroke = look.stroke; });
    }
}

void GraphSettings::store(const GraphModel& model)
{
    const GraphData& settings = model.settings();
    const auto palette = static_cast<int>(settings.palette);
    bool isChanged = settings.clickMovesCursor != Settings::kGraphClickMovesCursor.get(mProperty) ||
                     settings.gapsOn != Settings::kGraphGaps.get(mProperty) || palette != Settings::kGraphPalette.get(mProperty);
    Settings::kGraphClickMovesCursor.set(mProperty, settings.clickMovesCursor);
    Settings::kGraphGaps.set(mProperty, settings.gapsOn);
    Settings::kGraphPalette.set(mProperty, palette);
    for (const int slot : model.traces().shown()) {
        const GraphParameter& trace = *model.traces().at(slot);
        const Look look{trace.hasOwnColour ? trace.colour.name().toStdString() : std::string(), trace.stroke};
        isChanged |= setLook(lookNumber(slot, trace.name), look, look == Look() ? std::string() : trace.name.toStdString());
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
    const std::optional<int> number = ownNumber(name);
    const Look look{colour, number ? this->look(*number).stroke : TraceStroke()};
    return setLook(number.value_or(freeNumber()), look, look == Look() ? std::string() : name);
}

std::optional<int> GraphSettings::ownNumber(const std::string& name) const
{
    for (int number = 0; number < kColour.count && !name.empty(); ++number) {
        if (kOwner.get(mProperty, number) == name)
            return number;
    }
    return std::nullopt;
}

int GraphSettings::lookNumber(int slot, const QString& name) const
{
    if (const std::optional<int> number = ownNumber(name.toStdString()))
        return *number;
    return kOwner.get(mProperty, slot).empty() ? slot : freeNumber(); // one without an owner is the slot's
}

int GraphSettings::freeNumber() const
{
    int number = 0;
    while (number < kColour.count && !(kColour.get(mProperty, number).empty() && kOwner.get(mProperty, number).empty()))
        ++number;
    return number;
}

GraphSettings::Look GraphSettings::look(int number) const
{
    const auto value = [&](const NumberedSetting& setting, int most) {
        return std::clamp(setting.text(mProperty, number).toInt(), 0, most);
    };
    return {
        kColour.get(mProperty, number),
        {std::max(value(kWidth, TraceStroke::kWidest), 1), static_cast<ELineStyle>(value(kStyle, static_cast<int>(ELineStyle::eDotted)))}};
}

bool GraphSettings::setLook(int number, const Look& look, const std::string& owner)
{
    if (look == this->look(number) && owner == kOwner.get(mProperty, number))
        return false;
    const TraceStroke& stroke = look.stroke;
    kColour.set(mProperty, number, look.colour);
    kWidth.set(mProperty, number, stroke.width == TraceStroke().width ? std::string() : std::to_string(stroke.width));
    kStyle.set(mProperty, number, stroke.style == TraceStroke().style ? std::string() : std::to_string(static_cast<int>(stroke.style)));
    kOwner.set(mProperty, number, owner);
    return true;
}

} // namespace ZARN
