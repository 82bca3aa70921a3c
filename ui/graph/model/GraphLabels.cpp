#include "ui/graph/model/GraphLabels.h"

#include "ui/canvas/ColourContrast.h"
#include "ui/graph/model/TraceColours.h"

namespace ZARN {

namespace {

constexpr double kShortDash = 5.0; // pixels; a dot is shorter
constexpr double kPartGap = 2.0;

} // namespace

CanvasText GraphLabels::style(Qt::Alignment align, const std::optional<QColor>& colour) const
{
    return {mLayout.textSize(), colour.value_or(mModel.colours().label), true, align, false};
}

QColor GraphLabels::contrast(double alpha) const
{
    return withAlpha(textColourOn(mModel.colours().background), alpha);
}

QColor GraphLabels::highlight() const
{
    const bool isLight = textColourOn(mModel.colours().labelBackground) == Qt::black;
    return {255, 255, 255, isLight ? 110 : 45};
}

void GraphLabels::drawBox(Canvas& canvas, const Label& label, const CanvasText& style) const
{
    const QSizeF box = canvas.textSize(label.text, style);
    QRectF area(label.position, box);
    if (style.align & Qt::AlignHCenter)
        area.translate(-box.width() / 2, 0);
    else if (style.align & Qt::AlignRight)
        area.translate(-box.width(), 0);
    if (style.align & Qt::AlignVCenter)
        area.translate(0, -box.height() / 2);
    else if (style.align & Qt::AlignBottom)
        area.translate(0, -box.height());
    canvas.fillRect(area.adjusted(-2, 0, 2, 0), mModel.colours().labelBackground);
}

void GraphLabels::drawScrollBar(Canvas& canvas, const QRectF& list, const VisibleRows& rows) const
{
    constexpr double kWidth = 4.0, kLeastThumb = 8.0;
    const QRectF bar(list.right() - kWidth, list.top(), kWidth, list.height());
    const QColor colour = mModel.colours().label;
    canvas.fillRect(bar, withAlpha(colour, 0.15));
    const double height = std::max(kLeastThumb, bar.height() * rows.count / rows.all);
    const double way = static_cast<double>(rows.first) / (rows.all - rows.count);
    canvas.fillRect(QRectF(bar.left(), bar.top() + way * (bar.height() - height), kWidth, height), withAlpha(colour, 0.6));
}

void GraphLabels::drawSwatch(Canvas& canvas, const QPointF& line, int index, const QColor& colour) const
{
    const double dash = dashOf(*mModel.traces().at(index)), width = GraphLayout::kSwatch;
    const int parts = dash == 0.0 ? 1 : dash < kShortDash ? 3 : 2;
    const double part = (width - kPartGap * (parts - 1)) / parts;
    for (int i = 0; i < parts; ++i)
        canvas.fillRect({line.x() + 2 + i * (part + kPartGap), line.y() + 3, part, mLayout.line() - 6}, colour);
}

void GraphLabels::draw(Canvas& canvas, const Label& label, Qt::Alignment align) const
{
    draw(canvas, std::vector{label}, align);
}

void GraphLabels::draw(Canvas& canvas, const std::vector<Label>& labels, Qt::Alignment align, const std::optional<QColor>& colour) const
{
    const CanvasText style = this->style(align, colour);
    for (const Label& label : labels)
        drawBox(canvas, label, style);
    for (const Label& label : labels)
        canvas.text(label.position, label.text, style);
}

} // namespace ZARN
