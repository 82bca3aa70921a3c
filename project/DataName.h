#pragma once

#include <QString>

namespace ZARN {

class CardContainer;

/// What is loaded, as the name of a file about it begins: "CARD cycle 2 flight 1". @param flight from 1; 0: the whole cycle
[[nodiscard]] QString dataName(const CardContainer& card, int flight);

} // namespace ZARN
