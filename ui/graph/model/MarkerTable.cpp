#include "ui/graph/model/MarkerTable.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace ZARN {

namespace {

constexpr double kSwatch = GraphLayout::kSwatch;
enum EColumn { eName, eFrom, eTo, eDifference, eMinimum, eMaximum, eMean, eIntegral, eUnit };

} // namespace

void MarkerTable::draw(Canvas& canvas) const
{
    const QRectF& table = mLayout.table();
    if (table.isEmpty())
        return;
    const std::vector<MarkerValues> values = markerValues(mModel.traces(), mModel.marker());
    const std::vector<QStringList> rows = cells(values);
    const std::vector<int> widths = this->widths(rows);
    const VisibleRows& visible = mLayout.tableRows();
    double y = table.top();
    drawRow(canvas, y, rows.front(), widths);
    for (int i = visible.first; i < visible.first + visible.count; ++i) {
        y += mLayout.line();
        const auto place = static_cast<std::size_t>(i);
        if (mModel.traces().shown()[place] == mModel.traces().highlighted())
            canvas.fillRect(QRectF(table.left(), y, table.width(), mLayout.line()), GraphLabels::kHighlight);
        canvas.fillRect(QRectF(table.left() + 2, y + 3, kSwatch, mLayout.line() - 6), values[place].pParameter->drawnColour);
        drawRow(canvas, y, rows[place + 1], widths);
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

std::vector<QStringList> MarkerTable::cells(const std::vector<MarkerValues>& values) const
{
    const GraphMarker& marker = mModel.marker();
    const QString width = QStringLiteral("dt = %1 s").arg(std::abs(marker.end - marker.start), 0, 'f', 3);
    std::vector<QStringList> rows{QStringList{width} + MarkerValues::headers() + QStringList{QString()}};
    for (const MarkerValues& value : values) {
        const GraphParameter& trace = *value.pParameter;
        rows.push_back(QStringList{GraphLayout::shortened(trace.label(), GraphLayout::kLongestName + 8)} + value.texts() +
                       QStringList{QLatin1Char('[') + integralUnit(trace.unit) + QLatin1Char(']')});
    }
    return rows;
}

std::vector<int> MarkerTable::widths(const std::vector<QStringList>& rows) const
{
    std::vector<int> widths(static_cast<std::size_t>(rows.front().size()), 0);
    for (const QStringList& row : rows) {
        for (std::size_t i = 0; i < widths.size(); ++i)
            widths[i] = std::max(widths[i], static_cast<int>(row[static_cast<qsizetype>(i)].size()) + (i == eUnit ? 1 : 2));
    }
    int wanted = std::accumulate(widths.begin(), widths.end(), 0);
    const int room = static_cast<int>((mLayout.table().width() - kSwatch - 6) / mLayout.character()) + 1;
    for (const std::size_t column : {eFrom, eTo, eDifference, eMinimum, eMaximum, eIntegral, eMean}) {
        if (wanted <= room)
            break;
        wanted -= std::exchange(widths[column], 0);
        if (column == eIntegral)
            wanted -= std::exchange(widths[eUnit], 0);
    }
    return widths;
}

CanvasText MarkerTable::style(bool isBold) const
{
    return {mLayout.textSize(), mModel.colours().label, isBold, Qt::AlignLeft | Qt::AlignTop, false};
}

void MarkerTable::drawRow(Canvas& canvas, double y, const QStringList& cells, const std::vector<int>& widths) const
{
    double x = mLayout.table().left() + kSwatch + 6;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const double width = widths[i] * mLayout.character();
        const QString& cell = cells[static_cast<qsizetype>(i)];
        CanvasText text = style(i == eName);
        const bool isNumber = i != eName && i != eUnit;
        if (isNumber)
            text.align = Qt::AlignRight | Qt::AlignTop;
        if (widths[i] > 0 && !cell.isEmpty())
            canvas.text(QPointF(isNumber ? x + width : i == eUnit ? x + mLayout.character() : x, y), cell, text);
        x += width;
    }
}

} // namespace ZARN
