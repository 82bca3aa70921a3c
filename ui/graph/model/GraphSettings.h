#pragma once

#include "ui/graph/model/GraphModel.h"

#include <optional>
#include <string>

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

    /// The colour that the user gave to a parameter, #rrggbb; empty when there is none.
    [[nodiscard]] std::string colour(const std::string& name) const;
    /// Keeps a colour for a parameter, or with an empty one none; what the graph draws follows at the next load(). @return whether it was
    /// another one
    bool setColour(const std::string& name, const std::string& colour);

private:
    /// The number of the parameter's colour; none when it has none.
    [[nodiscard]] std::optional<int> ownNumber(const std::string& name) const;
    /// Under which number the settings keep the colour of the parameter in that slot.
    [[nodiscard]] int colourNumber(int slot, const QString& name) const;
    [[nodiscard]] int freeNumber() const;
    bool setColour(int number, const std::string& colour, const std::string& owner);

    Property& mProperty;
};

} // namespace ZARN
