#pragma once

#include "ui/graph/GraphData.h"

namespace ZARN {

class GraphModel;
class Property;

/// What of the graph's setup lasts from one start to the next: the colours that the user gave to traces, and what a click does.
class GraphSettings {
public:
    explicit GraphSettings(Property& property) : mProperty(property) {}

    /// Brings both up to date with the settings, and lists the shown traces with their colours for the setup window.
    void load(GraphModel& model, GraphData& data) const;
    /// Puts what the setup window has changed into the settings, and writes them when something has.
    void store(const GraphData& data);

private:
    /// Under which number the settings keep the colour of the parameter in that slot.
    [[nodiscard]] int colourNumber(int slot, const QString& name) const;
    /// Whether it has changed.
    bool storeColour(const TraceColour& trace);

    Property& mProperty;
};

} // namespace ZARN
