#pragma once

#include <QFontInfo>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace ZARN {

/// The sizes of texts: all follow the size that the user chose.
enum class EText {
    eFine,    ///< beside something that is read first: counts, numbers of bits
    eDrawn,   ///< in graphs, maps and tables
    eNormal,  ///< of the style
    eHeading, ///< of a part of a window
    eTitle    ///< of a window
};

constexpr int kSmallestText = 8; ///< pixels, below which nothing is read

/// @param chosen size of the text that stands beside it. @return pixels
[[nodiscard]] inline int textSize(int chosen, EText text)
{
    constexpr double kFine = 5.0 / 6, kHeading = 4.0 / 3, kTitle = 1.7;
    switch (text) {
    case EText::eFine: return std::max(static_cast<int>(chosen * kFine), kSmallestText);
    case EText::eDrawn: return std::max(chosen - 1, kSmallestText);
    case EText::eHeading: return static_cast<int>(std::lround(chosen * kHeading));
    case EText::eTitle: return static_cast<int>(std::lround(chosen * kTitle));
    default: return chosen;
    }
}

/// The same beside the text of a widget, which has the style's size.
[[nodiscard]] inline int textSize(const QWidget& widget, EText text = EText::eNormal)
{
    return textSize(QFontInfo(widget.font()).pixelSize(), text);
}

/// An icon or a display grows with the texts around it. @param usual its size beside the usual ones, and beside smaller ones. @return pixels
[[nodiscard]] inline int grownWithText(const QWidget& widget, int usual)
{
    constexpr double kUsualText = 12.0;
    return std::max(usual, static_cast<int>(std::lround(usual * textSize(widget) / kUsualText)));
}

} // namespace ZARN
