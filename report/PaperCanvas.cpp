#include "report/PaperCanvas.h"

#include "ui/canvas/CanvasFont.h"

#include <QFontMetricsF>

#include <utility>

namespace ZARN {

QFont PaperCanvas::font(const CanvasText& style) const
{
    return textFont(style.size, style.bold);
}

QSizeF PaperCanvas::textSize(const QString& text, const CanvasText& style) const
{
    return {QFontMetricsF(font(style)).horizontalAdvance(text), canvasTextSize(text, style.size, style.bold).height()};
}

QString PaperCanvas::shortened(const QString& text, double width, const CanvasText& style) const
{
    return QFontMetricsF(font(style)).elidedText(text, Qt::ElideRight, width);
}

QStringList PaperCanvas::wrapped(const QString& text, double width, const CanvasText& style) const
{
    QStringList lines;
    QString line;
    for (const QString& word : text.split(' ', Qt::SkipEmptyParts)) {
        const QString longer = line.isEmpty() ? word : line + ' ' + word;
        if (!line.isEmpty() && textSize(longer, style).width() > width)
            lines << shortened(std::exchange(line, word), width, style);
        else
            line = longer;
    }
    lines << shortened(line, width, style);
    return lines;
}

} // namespace ZARN
