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
    void store(const GraphModel& model, const GraphData& data);

private:
    Property& mProperty;
};

} // namespace ZARN
