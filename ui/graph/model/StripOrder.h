#pragma once

#include <QString>

#include <vector>

namespace ZARN {

/// The order that the user gave to the strips, by what they show and not by their slots, which change with every parameter that is ticked.
class StripOrder {
public:
    /// @param names of the strips from top to bottom, as the user has just put them
    void keep(const std::vector<QString>& names);
    /// @param names of the slots in use  @return the slots from top to bottom. Parameters that were never moved past one another stand
    /// as their slots do, new ones behind the one before them.
    [[nodiscard]] std::vector<int> slotsFor(const std::vector<QString>& names);

private:
    std::vector<QString> mNames; // empty until the user has moved a strip; those that are not shown now keep their places
};

} // namespace ZARN
