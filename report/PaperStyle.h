#pragma once

#include <QColor>

/// Sizes and colours of a report on paper, in points.
namespace ZARN::PaperStyle {

constexpr double kText = 8.0;
constexpr double kLine = 11.5;
constexpr double kGap = 12.0; // between two columns
constexpr QColor kInk{20, 33, 46};
constexpr QColor kQuiet{74, 91, 107};
constexpr QColor kRule{180, 191, 202};
constexpr QColor kAccent{18, 88, 143};
constexpr QColor kAlert{150, 30, 15};

} // namespace ZARN::PaperStyle
