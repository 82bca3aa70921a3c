#pragma once

#include <QColor>

namespace ZARN {

/// Black or white, whichever is read better on a ground; judged by its relative luminance.
[[nodiscard]] QColor textColourOn(const QColor& ground);

} // namespace ZARN
