#include "ui/graph/model/GraphTables.h"

#include "ui/canvas/ColourContrast.h"
#include "ui/graph/model/GraphTexts.h"
#include "ui/graph/model/MarkerValues.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace ZARN {

namespace {

constexpr double kSwatch = GraphLayout::kSwatch;
constexpr QColor kHighlight(255, 255, 255, 110), kDarkHighlight(255, 255, 255, 45);

QString translated(const char* text)
{
    return QCoreApplication::translate("ZARN::GraphTables", text);
}

QString markerWidth(const GraphModel& model)
{
    return QStringLiteral("dt = %1 s").arg(std::abs(model.marker().end - model.marker().start), 0, 'f', 3);
}

/// The extremes within the window; empty when no sample lies in it.
ValueRange<double> windowRange(const GraphModel& model, const SampleSeries& samples)
{
    const std::size_t first = samples.firstAtOrAfter(model.window().begin());
    const auto last = samples.lastAtOrBefore(model.window().end());
    return last && first <= *last ? samples.range(first, *last + 1) : ValueRange<double>{};
}

/// Takes columns of the marker's table away until the rest has room; all of them are in the copied text. First go those that can be read
/// from the traces. @param widths in characters; 0 for a column that is not shown
void dropColumns(std::vector<int>& widths, int room)
{
    enum { eName, eFrom, eTo, eDifference, eMinimum, eMaximum, eMean, eIntegral };
    int wanted = std::accumulate(widths.begin(), widths.end(), 0);
    for (const std::size_t column : {eFrom, eTo, eDifference, eMinimum, eMaximum, eIntegral, eMean}) {
        if (wanted <= room)
            return;
        wanted -= std::exchange(widths[column], 0);
    }
}

} // namespace

void GraphTables::draw(Canvas& canvas) const
{
    drawLegend(canvas);
    drawMarkerTable(canvas);
}

CanvasText GraphTables::style(bool isBold) const
{
    return {mLayout.textSize(), mModel.colours().label, isBold, Qt::AlignLeft | Qt::AlignTop, false};
}

QColor GraphTables::highlight() const
{
    return textColourOn(mModel.colours().labelBackground) == Qt::black ? kHighlight : kDarkHighlight;
}

QStringList GraphTables::legendNumbers(int index) const
{
    const GraphParameter& trace = *mModel.traces().at(index);
    std::vector<std::optional<double>> values{mModel.traces().valueAt(index, mModel.cursor().time)};
    const Ghost* pGhost = mModel.scenery().ghost().get();
    if (pGhost && mLayout.legendKind() == GraphLayout::ELegend::eFull) {
        values.push_back(ghostValue(*pGhost, index, mModel.cursor().time, mModel.scenery().ghostShift()));
        const bool isDifferent = values[0] && values[1] && !trace.pStates;
        values.push_back(isDifferent ? std::optional(*values[0] - *values[1]) : std::nullopt);
    } else if (mLayout.legendKind() == GraphLayout::ELegend::eFull) {
        const ValueRange<double> range = windowRange(mModel, trace.samples);
        for (const double value : {range.least, range.greatest})
            values.push_back(range.isEmpty() ? std::nullopt : std::optional(value));
    }
    QStringList texts;
    for (const std::optional<double>& value : values)
        texts << (value ? GraphLayout::shortened(trace.text(*value), GraphLayout::kLongestState) : QStringLiteral("-"));
    return texts;
}

double GraphTables::drawColumns(Canvas& canvas, const QPointF& place, const QStringList& texts) const
{
    CanvasText right = style(false);
    right.align = Qt::AlignRight | Qt::AlignTop;
    double x = place.x();
    for (const QString& text : texts) {
        x += (mLayout.numberLength() + 1) * mLayout.character();
        canvas.text(QPointF(std::round(x), place.y()), text, right);
    }
    return x;
}

void GraphTables::drawLegend(Canvas& canvas) const
{
    if (mLayout.legendKind() == GraphLayout::ELegend::eNone)
        return;
    int missing = 0;
    QRectF last = mLayout.legend();
    last.setHeight(mLayout.line());
    for (std::size_t row = 0; row < mModel.traces().shown().size(); ++row) {
        const QRectF line = mLayout.legendLine(mModel, row);
        if (line.isEmpty())
            ++missing;
        else
            last = line;
    }
    // All areas, then all bold texts, then all others: what is alike goes to the screen together.
    for (const ELayer layer : {ELayer::eAreas, ELayer::eNames, ELayer::eNumbers}) {
        for (std::size_t row = 0; row < mModel.traces().shown().size(); ++row)
            drawLegendLine(canvas, mLayout.legendLine(mModel, row), mModel.traces().shown()[row], layer);
    }
    drawLegendHeader(canvas);
    if (missing > 0)
        canvas.text(last.bottomLeft() + QPointF(kSwatch + 6, 0), translated(QT_TRANSLATE_NOOP("ZARN::GraphTables", "%1 more")).arg(missing),
                    style(false));
}

void GraphTables::drawLegendHeader(Canvas& canvas) const
{
    QStringList texts{translated(QT_TRANSLATE_NOOP("ZARN::GraphTables", "Cursor"))};
    const Ghost* pGhost = mModel.scenery().ghost().get();
    if (pGhost && mLayout.legendKind() == GraphLayout::ELegend::eFull)
        texts << GraphLayout::shortened(pGhost->name, mLayout.numberLength())
              << GraphLayout::shortened(translated(QT_TRANSLATE_NOOP("ZARN::GraphTables", "Difference")), mLayout.numberLength());
    else if (mLayout.legendKind() == GraphLayout::ELegend::eFull)
        texts << translated(QT_TRANSLATE_NOOP("ZARN::GraphTables", "Min")) << translated(QT_TRANSLATE_NOOP("ZARN::GraphTables", "Max"));
    // Strips have their lines at their own heights, so the header stands above the first.
    const bool isSplit = mModel.settings().displayMode == eSplit;
    const double y = mLayout.legend().top() - (isSplit ? mLayout.line() : 0.0);
    const double names = kSwatch + 6 + mLayout.nameLength() * mLayout.character();
    const double first = mLayout.legendLine(mModel, 0).top();
    for (std::size_t row = 0; row < mModel.traces().shown().size(); ++row) {
        const QRectF line = mLayout.legendLine(mModel, row);
        if (!line.isEmpty() && line.top() == first) // at the head of each column
            drawColumns(canvas, QPointF(line.left() + names, y), texts);
    }
}

void GraphTables::drawLegendLine(Canvas& canvas, const QRectF& line, int index, ELayer layer) const
{
    if (line.isEmpty())
        return;
    const GraphParameter& parameter = *mModel.traces().at(index);
    const double x = line.left() + kSwatch + 6;
    if (layer == ELayer::eAreas) {
        if (index == mModel.traces().highlighted())
            canvas.fillRect(line, highlight());
        canvas.fillRect(QRectF(line.left() + 2, line.top() + 3, kSwatch, line.height() - 6), parameter.drawnColour);
    } else if (layer == ELayer::eNames) {
        canvas.text(QPointF(x, line.top()), GraphLayout::shortened(parameter.name, mLayout.nameLength()), style(true));
    } else {
        const QPointF place(x + mLayout.nameLength() * mLayout.character(), line.top());
        const double end = drawColumns(canvas, place, legendNumbers(index));
        const QString unit = GraphLayout::shortened(parameter.unit, GraphLayout::kLongestName / 2);
        if (!unit.isEmpty())
            canvas.text(QPointF(end, place.y()), QLatin1String(" [") + unit + QLatin1Char(']'), style(false));
    }
}

void GraphTables::drawOverlay(Canvas& canvas, const CursorLabels& cursor) const
{
    if (mLayout.legendKind() != GraphLayout::ELegend::eNone)
        return;
    QColor box = mModel.colours().labelBackground;
    box.setAlpha(210);
    for (std::size_t row = 0; row < mModel.traces().shown().size(); ++row) {
        const QRectF line = mLayout.legendLine(mModel, row);
        if (line.isEmpty() || cursor.covers(line))
            continue;
        const int index = mModel.traces().shown()[row];
        const GraphParameter& parameter = *mModel.traces().at(index);
        canvas.fillRect(line, box);
        if (index == mModel.traces().highlighted())
            canvas.fillRect(line, highlight());
        canvas.fillRect(QRectF(line.left() + 2, line.top() + 3, kSwatch, line.height() - 6), parameter.drawnColour);
        canvas.text(line.topLeft() + QPointF(kSwatch + 5, 0), mLayout.overlayText(mModel, index), style(true));
    }
}

void GraphTables::drawMarkerTable(Canvas& canvas) const
{
    const QRectF& table = mLayout.table();
    if (table.isEmpty())
        return;
    std::vector<QStringList> rows{QStringList{markerWidth(mModel)} + MarkerValues::headers()};
    const auto room = static_cast<std::size_t>(std::max(2.0, std::floor(table.height() / mLayout.line())));
    const std::vector<MarkerValues> values = markerValues(mModel.traces(), mModel.marker());
    const std::size_t fitting = values.size() + 1 <= room ? values.size() : room - 2;
    for (std::size_t i = 0; i < fitting; ++i) {
        rows.push_back(QStringList{GraphLayout::shortened(values[i].pParameter->label(), GraphLayout::kLongestName + 8)} +
                       values[i].texts());
        rows.back().back() += QStringLiteral(" [") + integralUnit(values[i].pParameter->unit) + QLatin1Char(']');
    }
    std::vector<int> widths(static_cast<std::size_t>(rows.front().size()), 0);
    for (const QStringList& row : rows) {
        for (std::size_t i = 0; i < widths.size(); ++i)
            widths[i] = std::max(widths[i], static_cast<int>(row[static_cast<qsizetype>(i)].size()) + 2);
    }
    dropColumns(widths, static_cast<int>((table.width() - kSwatch - 6) / mLayout.character()) + 1);
    double y = table.top();
    for (std::size_t i = 0; i < rows.size(); ++i, y += mLayout.line()) {
        if (i > 0)
            canvas.fillRect(QRectF(table.left() + 2, y + 3, kSwatch, mLayout.line() - 6), values[i - 1].pParameter->drawnColour);
        drawRow(canvas, y, rows[i], widths);
    }
    if (fitting < values.size())
        canvas.text(QPointF(table.left() + kSwatch + 6, y),
                    translated(QT_TRANSLATE_NOOP("ZARN::GraphTables", "%1 more: see Copy Values")).arg(values.size() - fitting),
                    style(false));
}

void GraphTables::drawRow(Canvas& canvas, double y, const QStringList& cells, const std::vector<int>& widths) const
{
    double x = mLayout.table().left() + kSwatch + 6;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        if (widths[i] == 0)
            continue;
        const double width = widths[i] * mLayout.character();
        CanvasText text = style(i == 0);
        if (i > 0)
            text.align = Qt::AlignRight | Qt::AlignTop;
        if (!cells[static_cast<qsizetype>(i)].isEmpty())
            canvas.text(QPointF(i == 0 ? x : x + width, y), cells[static_cast<qsizetype>(i)], text);
        x += width;
    }
}

} // namespace ZARN
