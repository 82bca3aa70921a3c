#pragma once

#include <QFontInfo>
#include <QWidget>

namespace ZARN {

constexpr int kSmallestText = 8; ///< pixels, below which nothing is read

/// The pixel size of a widget's text: the style's, as the user chose it.
[[nodiscard]] inline int textSize(const QWidget& widget)
{
    return QFontInfo(widget.font()).pixelSize();
}

} // namespace ZARN
