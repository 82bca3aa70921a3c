#pragma once

#include <QColor>

namespace ZARN {

/// How plainly two opaque colours differ for the eye: from 1 (alike) to 21 (black and white).
[[nodiscard]] double contrastRatio(const QColor& a, const QColor& b);

/// Black or white, whichever can be told from the ground more plainly.
[[nodiscard]] QColor textColourOn(const QColor& ground);

/// The colour, or the nearest one of its hue, lightened on a dark ground and darkened on a light one, that reaches the ratio.
[[nodiscard]] QColor readableOn(const QColor& ground, const QColor& colour, double ratio);

/// Between two opaque colours. @param share of the second one
[[nodiscard]] QColor mixed(const QColor& a, const QColor& b, float share);

/// @param alpha from 0 (not seen) to 1
[[nodiscard]] QColor withAlpha(QColor colour, double alpha);

} // namespace ZARN
