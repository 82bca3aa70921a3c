#include "ui/graph/model/GraphLabels.h"

#include "ui/canvas/ColourContrast.h"

namespace ZARN {

CanvasText GraphLabels::style(Qt::Alignment align, const std::optional<QColor>& colour) const
{
    return {mLayout.textSize(), colour.value_or(mModel.colours().label), true, align, false};
}

QColor GraphLabels::contrast(double alpha) const
{
    return withAlpha(textColourOn(mModel.colours().background), alpha);
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
