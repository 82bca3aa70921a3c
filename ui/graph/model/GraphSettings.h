#pragma once

#include "ui/graph/model/GraphModel.h"

namespace ZARN {

class Property;

/// What of the graph's setup lasts from one start to the next: the colours that the user gave to traces, and what a click does.
class GraphSettings {
public:
    explicit GraphSettings(Property& property) : mProperty(property) {}

    /// Brings the graph up to date with the settings.
    void load(GraphModel& model) const;
    /// Keeps what the graph has now, and writes the settings when that is something else.
    void store(const GraphModel& model);

private:
    /// Under which number the settings keep the colour of the parameter in that slot.
    [[nodiscard]] int colourNumber(int slot, const QString& name) const;
    /// Whether it has changed.
    bool storeColour(int slot, const GraphParameter& trace);

    Property& mProperty;
};

} // namespace ZARN
