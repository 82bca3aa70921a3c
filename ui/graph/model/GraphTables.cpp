#include "ui/graph/model/GraphTables.h"

#include "ui/canvas/ShortName.h"
#include "ui/graph/model/GraphTexts.h"
#include "ui/graph/model/MarkerTable.h"

#include <QCoreApplication>
#include <QStringList>

#include <cmath>

namespace ZARN {

namespace {

constexpr double kSwatch = GraphLayout::kSwatch;

QString translated(const char* text)
{
    return QCoreApplication::translate("ZARN::GraphTables", text);
}

/// The extremes within the window; empty when no sample lies in it.
ValueRange<double> windowRange(const GraphModel& model, const SampleSeries& samples)
{
    const std::size_t first = samples.firstAtOrAfter(model.window().begin());
    const auto last = samples.lastAtOrBefore(model.window().end());
    return last && first <= *last ? samples.range(first, *last + 1) : ValueRange<double>{};
}

} // namespace

void GraphTables::draw(Canvas& canvas) const
{
    drawLegend(canvas);
    MarkerTable(mModel, mLayout).draw(canvas);
}

CanvasText GraphTables::style(bool isBold) const
{
    return {mLayout.textSize(), mModel.colours().label, isBold, Qt::AlignLeft | Qt::AlignTop, false};
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
    for (const std::optional<double>& value : values) {
        const QString text = value ? trace.text(*value) : QStringLiteral("-");
        texts << (trace.pStates ? cutText(text, GraphLayout::kLongestState) : text); // a number is never cut
    }
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
    // All areas, then all bold texts, then all others: what is alike goes to the screen together.
    for (const ELayer layer : {ELayer::eAreas, ELayer::eNames, ELayer::eNumbers}) {
        for (std::size_t row = 0; row < mModel.traces().shown().size(); ++row)
            drawLegendLine(canvas, mLayout.legendLine(mModel, row), mModel.traces().shown()[row], layer);
    }
    drawLegendHeader(canvas);
    const VisibleRows& rows = mLayout.legendRows();
    if (mLayout.isLegendInStrips() || !rows.isCut())
        return;
    const QRectF list = mLayout.legend();
    mLabels.drawScrollBar(canvas, list.adjusted(0, mLayout.line(), 0, 0), rows);
    // In the last line of the last column.
    const QRectF line = mLayout.legendLine(mModel, static_cast<std::size_t>(rows.first));
    const QPointF place(line.isEmpty() ? list.left() : list.right() - line.width(),
                        std::floor(list.height() / mLayout.line() - 1) * mLayout.line() + list.top());
    canvas.text(place + QPointF(kSwatch + 6, 0), translated(QT_TRANSLATE_NOOP("ZARN::GraphTables", "%1 more")).arg(rows.all - rows.count),
                style(false));
}

void GraphTables::drawLegendHeader(Canvas& canvas) const
{
    QStringList texts{translated(QT_TRANSLATE_NOOP("ZARN::GraphTables", "Cursor"))};
    const Ghost* pGhost = mModel.scenery().ghost().get();
    if (pGhost && mLayout.legendKind() == GraphLayout::ELegend::eFull)
        texts << cutText(pGhost->name, mLayout.numberLength())
              << cutText(translated(QT_TRANSLATE_NOOP("ZARN::GraphTables", "Diff.")), mLayout.numberLength());
    else if (mLayout.legendKind() == GraphLayout::ELegend::eFull)
        texts << translated(QT_TRANSLATE_NOOP("ZARN::GraphTables", "Min")) << translated(QT_TRANSLATE_NOOP("ZARN::GraphTables", "Max"));
    // Strips have their lines at their own heights, so the header stands above the first.
    const bool isInStrips = mLayout.isLegendInStrips();
    const double y = mLayout.legend().top() - (isInStrips ? mLayout.line() : 0.0);
    const double names = kSwatch + 6 + mLayout.nameLength() * mLayout.character();
    const double first = mLayout.legendLine(mModel, isInStrips ? 0 : static_cast<std::size_t>(mLayout.legendRows().first)).top();
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
            canvas.fillRect(line, mLabels.highlight());
        mLabels.drawSwatch(canvas, line.topLeft(), index, parameter.drawnColour);
    } else if (layer == ELayer::eNames) {
        canvas.text(QPointF(x, line.top()), shortName(parameter.name, mLayout.nameLength()), style(true));
    } else {
        const QPointF place(x + mLayout.nameLength() * mLayout.character(), line.top());
        const double end = drawColumns(canvas, place, legendNumbers(index));
        const QString unit = cutText(parameter.unit, GraphLayout::kLongestName / 2);
        if (!unit.isEmpty())
            canvas.text(QPointF(end, place.y()), QLatin1String(" [") + unit + QLatin1Char(']'), style(false));
    }
}

void GraphTables::drawOverlay(Canvas& canvas, const CursorLabels& cursor) const
{
    // In strips that have their values below, too, nothing else says whose they are.
    const bool isBelow = mModel.settings().displayMode == eSplit && mLayout.legend().top() > mLayout.plot().bottom();
    if (!mModel.settings().legendOn || (mLayout.legendKind() != GraphLayout::ELegend::eNone && !isBelow))
        return;
    QColor box = mModel.colours().labelBackground;
    box.setAlpha(210);
    for (std::size_t row = 0; row < mModel.traces().shown().size(); ++row) {
        const QRectF line = mLayout.overlayLine(mModel, row);
        if (line.isEmpty() || cursor.covers(line))
            continue;
        const int index = mModel.traces().shown()[row];
        const GraphParameter& parameter = *mModel.traces().at(index);
        canvas.fillRect(line, box);
        if (index == mModel.traces().highlighted())
            canvas.fillRect(line, mLabels.highlight());
        mLabels.drawSwatch(canvas, line.topLeft(), index, parameter.drawnColour);
        canvas.text(line.topLeft() + QPointF(kSwatch + 5, 0), mLayout.overlayText(mModel, index), style(true));
    }
}

} // namespace ZARN
