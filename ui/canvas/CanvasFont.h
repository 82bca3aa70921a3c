#pragma once

#include <QByteArray>
#include <QFont>
#include <QSizeF>

namespace ZARN {

/// The file of the monospaced font that comes with the program, regular or bold.
[[nodiscard]] QByteArray canvasFontFile(bool bold);

/// The file of the proportional one, which is called "ZARN Text".
[[nodiscard]] QByteArray textFontFile(bool bold);

/// The monospaced font for painters. @param size em height in pixels. Needs the QGuiApplication.
[[nodiscard]] QFont canvasFont(double size, bool bold);

/// The proportional font that comes with the program, for paper: its digits have one width, its points and colons no holes beside them.
[[nodiscard]] QFont textFont(double size, bool bold);

/// Width and height of a text in pixels: every character is 0.65 em wide, points, commas and colons 0.3, and a line is 1.22 em high. The same for all canvases, so
/// that a layout does not depend on what draws it.
[[nodiscard]] QSizeF canvasTextSize(const QString& text, double size, bool bold);

/// Width of every character that is not narrow, in pixels.
[[nodiscard]] double canvasAdvance(double size);

/// Depth of the base line below the top of the box of a text.
[[nodiscard]] double canvasAscent(double size);

} // namespace ZARN
