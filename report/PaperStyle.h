#pragma once

#include "ui/canvas/Palette.h"

/// Sizes and colours of a report on paper, in points.
namespace ZARN::PaperStyle {

constexpr double kText = 8.0;
constexpr double kLine = 11.5;
constexpr double kGap = 12.0; // between two columns

[[nodiscard]] inline const Palette::Text& colours()
{
    return Palette::print().text;
}

} // namespace ZARN::PaperStyle
