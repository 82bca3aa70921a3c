#pragma once

#include <QIcon>

namespace ZARN {

/// The shape that tells an event's state beside its colour, legible on any ground: a triangle for the first state, an octagon for the
/// second. Null for every other.
[[nodiscard]] QIcon eventMark(int state);

} // namespace ZARN
