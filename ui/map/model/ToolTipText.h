#pragma once

#include <QString>

namespace ZARN {

/// A tool tip that shows a text as it is, lines included: texts come from files and could be taken for rich text.
[[nodiscard]] inline QString plainToolTip(const QString& text)
{
    return text.isEmpty() ? QString() : QLatin1String("<p style='white-space:pre'>") + text.toHtmlEscaped() + QLatin1String("</p>");
}

} // namespace ZARN
