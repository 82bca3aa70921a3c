#include "report/PaperCanvas.h"

#include "ui/canvas/CanvasFont.h"

#include <QFontMetricsF>

#include <utility>

namespace ZARN {

namespace {

constexpr double kRounding = 0.01; // points: what was measured fits, however it was rounded

QFontMetricsF metrics(const CanvasText& style)
{
    return QFontMetricsF(textFont(style.size, style.bold));
}

/// How many characters from the beginning on fit; at least one.
qsizetype fitting(const QString& word, double width, const QFontMetricsF& metrics)
{
    qsizetype count = 1;
    double used = metrics.horizontalAdvance(word[0]);
    while (count < word.size() && (used += metrics.horizontalAdvance(word[count])) <= width)
        ++count;
    return count < word.size() && word[count].isLowSurrogate() ? (count > 1 ? count - 1 : 2) : count;
}

} // namespace

QFont PaperCanvas::font(const CanvasText& style) const
{
    return textFont(style.size, style.bold);
}

QSizeF PaperCanvas::size(const QString& text, const CanvasText& style)
{
    return {metrics(style).horizontalAdvance(text), canvasTextSize(text, style.size, style.bold).height()};
}

QString PaperCanvas::shortened(const QString& text, double width, const CanvasText& style)
{
    return metrics(style).elidedText(text, Qt::ElideRight, width + kRounding);
}

QStringList PaperCanvas::wrapped(const QString& text, double width, const CanvasText& style, qsizetype most)
{
    const QFontMetricsF measure = metrics(style);
    QStringList lines;
    QString line;
    for (const QString& word : text.split(' ', Qt::SkipEmptyParts)) {
        const QString longer = line.isEmpty() ? word : line + ' ' + word;
        if (measure.horizontalAdvance(longer) <= width + kRounding) {
            line = longer;
            continue;
        }
        if (!line.isEmpty())
            lines << line;
        line = word;
        while (lines.size() <= most && measure.horizontalAdvance(line) > width + kRounding && line.size() > 1) {
            const qsizetype count = fitting(line, width, measure);
            lines << line.first(count);
            line.remove(0, count);
        }
    }
    lines << line;
    if (lines.size() <= most)
        return lines;
    const QString rest = lines.mid(most - 1).join(' ');
    lines = lines.first(most - 1);
    return lines << shortened(rest, width, style);
}

} // namespace ZARN
