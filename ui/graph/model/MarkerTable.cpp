#include "ui/graph/model/MarkerTable.h"

#include "ui/canvas/ColourContrast.h"
#include "ui/canvas/ShortName.h"

#include <QCoreApplication>

namespace ZARN {

namespace {

constexpr float kGhostShare = 0.5F; // of the trace's colour in that of its ghost
constexpr double kSwatch = GraphLayout::kSwatch;

} // namespace

void MarkerTable::draw(Canvas& canvas) const
{
    const QRectF& table = mLayout.table();
    if (table.isEmpty())
        return;
    const MarkerTableCells& sheet = mLayout.markerSheet();
    const VisibleRows& visible = mLayout.markerSheet().visible();
    double y = table.top();
    for (int i = visible.first; i < visible.first + visible.count; ++i) {
        const auto [part, row] = sheet.lines()[static_cast<std::size_t>(i)];
        if (i == visible.first)
            drawCells(canvas, y, sheet.headings(), part); // of what follows, wherever its own are
        y += mLayout.line();
        if (row >= 0)
            drawRow(canvas, y, sheet.rows()[static_cast<std::size_t>(row)], part);
        else if (i > visible.first)
            drawCells(canvas, y, sheet.headings(), part);
    }
    if (!visible.isCut())
        return;
    mLabels.drawScrollBar(canvas, table.adjusted(0, mLayout.line(), 0, 0), visible);
    const QString text = QCoreApplication::translate("ZARN::MarkerTable", "Lines %1 to %2 of %3: the wheel shows the others")
                             .arg(visible.first + 1)
                             .arg(visible.first + visible.count)
                             .arg(visible.all);
    canvas.text(QPointF(table.left() + kSwatch + 6, y + mLayout.line()), text, style(false));
}

void MarkerTable::drawRow(Canvas& canvas, double y, const MarkerTableCells::Row& row, std::size_t part) const
{
    const QRectF& table = mLayout.table();
    if (row.index == mModel.traces().highlighted())
        canvas.fillRect(QRectF(table.left(), y, table.width(), mLayout.line()), mLabels.highlight());
    mLabels.drawSwatch(canvas, {table.left(), y}, row.index, colourOf(row));
    drawCells(canvas, y, row.cells, part);
}

QColor MarkerTable::colourOf(const MarkerTableCells::Row& row) const
{
    const QColor& colour = mModel.traces().at(row.index)->drawnColour;
    return row.isGhost ? mixed(mModel.colours().labelBackground, colour, kGhostShare) : colour;
}

CanvasText MarkerTable::style(bool isBold) const
{
    return {mLayout.textSize(), mModel.colours().label, isBold, Qt::AlignLeft | Qt::AlignTop, false};
}

void MarkerTable::drawCells(Canvas& canvas, double y, const QStringList& cells, std::size_t part) const
{
    double x = mLayout.table().left() + kSwatch + 6;
    for (const auto& [cell, columnWidth] : mLayout.markerSheet().columns(part)) {
        const double width = columnWidth * mLayout.character();
        const QString text = cell == MarkerTableCells::eName ? shortName(cells[cell], columnWidth - 1) : cells[cell];
        CanvasText style = this->style(cell == MarkerTableCells::eName);
        const bool isNumber = cell != MarkerTableCells::eName && cell != MarkerTableCells::eUnit;
        if (isNumber)
            style.align = Qt::AlignRight | Qt::AlignTop;
        if (!text.isEmpty())
            canvas.text(QPointF(isNumber ? x + width : cell == MarkerTableCells::eUnit ? x + mLayout.character() : x, y), text, style);
        x += width;
    }
}

} // namespace ZARN
