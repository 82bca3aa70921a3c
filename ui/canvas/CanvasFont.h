#pragma once

#include <QByteArray>
#include <QFont>
#include <QSizeF>

namespace ZARN {

/// The file of the font that comes with the program, regular or bold, which is called "ZARN Text".
[[nodiscard]] QByteArray canvasFontFile(bool bold);

/// The table of named colours that comes with the program.
[[nodiscard]] QByteArray paletteFile();

/// That font for canvases of the screen: its digits have one width, its points and colons no holes beside them. @param size em height in
/// pixels. Needs the QGuiApplication.
[[nodiscard]] QFont canvasFont(double size, bool bold);

/// The same for paper, where letters move together as the font says.
[[nodiscard]] QFont textFont(double size, bool bold);

/// Width and height of a text in pixels; a line is 1.22 em high. The same for all canvases, so that a layout does not depend on what draws it.
[[nodiscard]] QSizeF canvasTextSize(const QString& text, double size, bool bold);

/// Width of a digit in pixels; other characters are narrower on the whole.
[[nodiscard]] double canvasAdvance(double size);

/// Depth of the base line below the top of the box of a text.
[[nodiscard]] double canvasAscent(double size);

} // namespace ZARN
