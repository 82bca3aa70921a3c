#include "ui/graph/model/GraphLayout.h"

#include "ui/canvas/CanvasFont.h"
#include "ui/canvas/ShortName.h"
#include "ui/graph/model/AxisLabels.h"
#include "ui/graph/model/AxisTicks.h"
#include "ui/graph/model/GraphTexts.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kGap = 6.0;
constexpr double kHandleRoom = 22.0;
constexpr double kLinesForBand = 16; // lower views have none
constexpr double kSmallestPlot = 60.0;
constexpr double kAxesPart = 0.22;     // of the view's width at most, but for the first
constexpr double kLeastGrip = 27.0;    // pixels of an axis beside the handles of the strips
constexpr double kReadableStrip = 2.5; // lines
constexpr double kTablePart = 0.38;    // of the view's height at most
constexpr double kLegendPart = 0.4;    // the same for the legend
constexpr double kPlotPart = 0.5;      // the plot's at least, where a table stands below it
constexpr double kComparedPart = 0.5;  // the same where two flights are compared
constexpr double kShortLegend = 0.34;  // of the view's width at most, where it tells the cursor's values alone
constexpr int kLeastNumber = 8;        // characters of a number in the legend
constexpr int kFewestOfName = 6, kSomeOfName = 14;

int longestName(const GraphModel& model)
{
    qsizetype longest = 0;
    for (const int index : model.traces().shown())
        longest = std::max(longest, model.traces().at(index)->name.size());
    return static_cast<int>(std::min<qsizetype>(longest, GraphLayout::kLongestName));
}

int longestUnit(const GraphModel& model)
{
    qsizetype longest = 0;
    for (const int index : model.traces().shown())
        longest = std::max(longest, model.traces().at(index)->unit.size());
    return static_cast<int>(std::min<qsizetype>(longest, GraphLayout::kLongestName / 2)) + 2;
}

/// No value is longer than the longer one of the extremes.
int longestNumber(const GraphModel& model)
{
    qsizetype longest = kLeastNumber;
    for (const int index : model.traces().shown()) {
        const GraphParameter& parameter = *model.traces().at(index);
        const ValueRange<double> values = parameter.range();
        if (parameter.pStates)
            longest = std::max<qsizetype>(longest, std::min(parameter.pStates->longest(), GraphLayout::kLongestState));
        for (const double value : {values.least, values.greatest}) {
            if (!values.isEmpty() && !parameter.pStates)
                longest = std::max(longest, graphNumber(value, parameter.precision).size());
        }
    }
    return static_cast<int>(longest) + (model.scenery().ghost() ? 1 : 0); // a difference may have a sign more
}

/// How much of the plot's height a shown trace's strip takes.
double partOfStrip(const GraphModel& model, int index)
{
    double all = 0;
    for (const int shown : model.traces().shown())
        all += model.traces().at(shown)->height;
    return model.traces().at(index)->height / all;
}

} // namespace

GraphLayout::GraphLayout(const GraphModel& model, const QSizeF& size, double textSize)
    : mSize(size), mTextSize(textSize), mLine(canvasTextSize(QStringLiteral("0"), textSize, true).height() + 2),
      mCharacter(canvasAdvance(textSize)), mNameLength(longestName(model)), mNumberLength(longestNumber(model)),
      mXmin(model.window().begin())
{
    const bool hasBand = model.scenery().course() && size.height() > kLinesForBand * mLine;
    const double top = mLine + kGap + (hasBand ? mLine + 1 : 0.0), table = placeTable(model);
    placeLegend(model, size.height() - table);
    const double bottom = (mIsBelow ? mLegendRect.top() - kGap / 2 : size.height() - table) - mLine - 2 * kGap;
    const double right = mLegend == ELegend::eNone || mIsBelow ? size.width() - 2 * kGap : mLegendRect.left() - kGap;
    const double height = std::max(kSmallestPlot, std::floor(bottom - top));
    const double left = placeAxes(model, height);
    mPlot = QRectF(left, top, std::max(kSmallestPlot, std::floor(right - left)), height);
    if (!mIsBelow)
        mLegendRect.setRect(mLegendRect.left(), mPlot.top(), mLegendRect.width(), mPlot.height());
    const double width = model.window().width();
    mPixelsPerSecond = mPlot.width() / (width > 0 ? width : TimeWindow::kSmallest);
    placeStrips(model);
    moveAxes(model);
    placeLegendRows(model);
}

void GraphLayout::placeStrips(const GraphModel& model)
{
    const std::vector<int>& shown = model.traces().shown();
    if (model.settings().displayMode != eSplit || shown.empty())
        return;
    mStrips.assign(model.traces().all().size(), mPlot);
    mStripHeight = mPlot.height();
    double top = 0;
    for (const int index : shown) {
        const double height = mPlot.height() * partOfStrip(model, index), first = std::round(top);
        mStripHeight = std::min(mStripHeight, height);
        top += height;
        mStrips[static_cast<std::size_t>(index)] = {mPlot.left(), mPlot.top() + first, mPlot.width(), std::round(top) - first};
    }
}

double GraphLayout::placeTable(const GraphModel& model)
{
    if (!model.marker().isRange() || model.traces().shown().empty())
        return 0;
    const double width = std::max(0.0, mSize.width() - 2 * kGap);
    constexpr double kBeside = 6.0 + 5.0; // the swatch, and below the scroll bar nothing stands
    mSheet = MarkerTableCells(model, static_cast<int>((width - kSwatch - kBeside) / mCharacter));
    // The headings take a line, and what is said of the lines that have no room another one.
    const auto lines = static_cast<int>(mSheet.lines().size());
    const int room = std::max(3, static_cast<int>(mSize.height() * kTablePart / mLine));
    mSheet.show(VisibleRows(model.settings().firstTableRow, lines < room ? lines : room - 2, lines));
    const double height = (mSheet.visible().count + (mSheet.visible().isCut() ? 2 : 1)) * mLine + kGap;
    mTable = QRectF(kGap, mSize.height() - height, width, height - kGap);
    return height;
}

bool GraphLayout::placeLegendBeside(const GraphModel& model, const LegendKind& kind)
{
    const int numbers = 3 + longestUnit(model) + (kind.legend == ELegend::eFull ? 3 : 1) * (mNumberLength + 1);
    const auto room = static_cast<int>((mSize.width() * kind.part - 2 * kGap) / mCharacter) - numbers;
    const int name = std::min(mNameLength, room);
    if (name < std::min(mNameLength, kind.leastName))
        return false;
    const double wanted = std::ceil((name + numbers) * mCharacter + 2 * kGap);
    mLegend = kind.legend;
    mNameLength = name;
    mLegendRect = QRectF(std::floor(mSize.width() - wanted - kGap), 0, wanted, 0);
    return true;
}

void GraphLayout::placeLegend(const GraphModel& model, double bottom)
{
    if (!model.settings().legendOn || model.traces().shown().empty())
        return;
    constexpr LegendKind kFull{ELegend::eFull, kLongestName, kLegendPart};
    // Where two are compared, the numbers are what is looked for.
    constexpr LegendKind kCompared{ELegend::eFull, kSomeOfName, kComparedPart};
    constexpr LegendKind kShort{ELegend::eCursor, kSomeOfName, kShortLegend};
    if (placeLegendBeside(model, kFull) || (model.scenery().ghost() && placeLegendBeside(model, kCompared)))
        return;
    if (model.scenery().ghost())
        placeLegendBelow(model, bottom);
    if (mLegend == ELegend::eNone && !placeLegendBeside(model, kShort))
        placeLegendBelow(model, bottom);
}

void GraphLayout::placeLegendBelow(const GraphModel& model, double bottom)
{
    // The marker's table has names and colours, too: beside it the plot comes first.
    const double plot = mTable.isEmpty() ? kSmallestPlot : std::max(kSmallestPlot, kPlotPart * mSize.height());
    const double room = std::min(bottom * kLegendPart, bottom - plot - 2 * mLine - 4 * kGap);
    double rows = std::min(model.traces().count() + 1.0, std::floor(room / mLine));
    const auto widthOf = [&](int name, int numbers) {
        return (name + longestUnit(model) + numbers * (mNumberLength + 1) + 1) * mCharacter + kSwatch + kGap;
    };
    const double wide = mSize.width() - 2 * kGap;
    const bool isCompared = model.scenery().ghost() && wide >= widthOf(std::min(mNameLength, kFewestOfName), 3);
    if (rows < 2 ||
        (model.settings().displayMode == eSplit && !isCompared && !isPanelWanted(model, bottom - 2 * mLine - 3 * kGap, rows * mLine)))
        return;
    const int columns = std::max(1, static_cast<int>(wide / widthOf(std::min(mNameLength, kSomeOfName), 1)));
    if (model.traces().count() > 1 && (rows - 1) * (isCompared ? 1 : columns) < 2)
        return; // it would say little but how many have no room
    if (isCompared || (wide >= widthOf(mNameLength, 3) && (model.traces().count() < rows || columns == 1))) {
        mLegend = ELegend::eFull;
        mNameLength = std::min(mNameLength, static_cast<int>((wide - widthOf(0, 3)) / mCharacter));
    } else {
        mLegend = ELegend::eCursor;
        mLegendColumns = columns;
        const auto longest = static_cast<int>((wide / mLegendColumns - widthOf(0, 1)) / mCharacter);
        mNameLength = std::clamp(longest, kFewestOfName, std::max(mNameLength, kFewestOfName));
        rows = std::min(rows, std::ceil(model.traces().count() / mLegendColumns) + 1);
    }
    mIsBelow = true;
    mLegendRect = QRectF(kGap, bottom - rows * mLine - kGap / 2, std::max(0.0, mSize.width() - 2 * kGap), rows * mLine);
}

bool GraphLayout::isPanelWanted(const GraphModel& model, double height, double panel) const
{
    double least = 1.0;
    for (const int index : model.traces().shown())
        least = std::min(least, partOfStrip(model, index));
    return height * least < mLine || (height - panel) * least >= kReadableStrip * mLine;
}

double GraphLayout::axisWidth(const GraphModel& model, int index, double height) const
{
    const ValueSpan range = model.valueSpan(index);
    qsizetype longest = 4;
    const double rounded = std::floor(height) < mLine ? std::ceil(height) : std::floor(height); // its area may be either: the longer labels count
    const AxisTicks ticks(range[0], range[1], rounded, valueSpacing(rounded, mLine));
    for (const AxisLabel& label : axisLabels(model, index, ticks, rounded, mLine))
        longest = std::max(longest, label.text.size());
    return static_cast<double>(std::min<qsizetype>(longest, 14)) * mCharacter + kGap;
}

double GraphLayout::placeAxes(const GraphModel& model, double height)
{
    const ShownTraces& traces = model.traces();
    if (model.settings().displayMode == eSplit && traces.count() > 0) {
        double widest = 0;
        for (const int index : traces.shown()) {
            widest = std::max(widest, axisWidth(model, index, height * partOfStrip(model, index)));
            mAxes.push_back({index, true, {}});
        }
        // Beside the reach of the handles there is room to take an axis, and the edges of strips.
        return std::ceil(std::max(kHandleRoom + widest + kGap, kHandleX + std::sqrt(kHandleReach) + kLeastGrip));
    }
    // Traces with the same values at both ends share an axis; the chosen trace's stands next to the plot.
    mAxes.push_back({traces.axis(), true, {}});
    double width = axisWidth(model, traces.axis(), height) + kGap;
    mAxes.back().labels.setWidth(width);
    std::vector<ValueSpan> spans{model.valueSpan(traces.axis())};
    for (const int index : traces.shown()) {
        const ValueSpan span = model.valueSpan(index);
        if (const auto same = std::ranges::find(spans, span); same != spans.end()) {
            ValueAxis& axis = mAxes[static_cast<std::size_t>(same - spans.begin())];
            axis.isOwn = axis.isOwn && axis.index == index;
            continue;
        }
        const double more = axisWidth(model, index, height) + kGap;
        if (width + more > mSize.width() * kAxesPart)
            break;
        width += more;
        spans.push_back(span);
        mAxes.push_back({index, true, QRectF(0, 0, more, 0)});
    }
    return std::ceil(kGap + width);
}

void GraphLayout::moveAxes(const GraphModel& model)
{
    double right = mPlot.left();
    for (ValueAxis& axis : mAxes) {
        const QRectF area = this->area(axis.index);
        const double left = model.settings().displayMode == eSplit ? kHandleRoom : right - axis.labels.width();
        axis.labels.setRect(left, area.top(), right - left, area.height());
        if (model.settings().displayMode != eSplit)
            right = left;
    }
}

QRectF GraphLayout::area(int index) const
{
    return index >= 0 && static_cast<std::size_t>(index) < mStrips.size() ? mStrips[static_cast<std::size_t>(index)] : mPlot;
}

QRectF GraphLayout::legendLine(const GraphModel& model, std::size_t row) const
{
    if (!model.settings().legendOn || row >= model.traces().shown().size())
        return {};
    if (mLegend == ELegend::eNone)
        return overlayLine(model, row);
    if (isLegendInStrips())
        return {mLegendRect.left(), area(model.traces().shown()[row]).top(), mLegendRect.width(), mLine};
    const int place = static_cast<int>(row) - mLegendRows.first;
    if (place < 0 || place >= mLegendRows.count)
        return {};
    const int lines = legendLines();
    const double width = mLegendRect.width() / mLegendColumns;
    return {mLegendRect.left() + place / lines * width, mLegendRect.top() + (place % lines + 1) * mLine, width, mLine};
}

int GraphLayout::legendLines() const
{
    // The first line is the header.
    return std::max(1, static_cast<int>(mLegendRect.height() / mLine) - 1);
}

void GraphLayout::placeLegendRows(const GraphModel& model)
{
    // The last line says how many found no room.
    const int traces = model.traces().count(), places = legendLines() * mLegendColumns;
    mLegendRows = VisibleRows(model.settings().firstLegendRow, traces <= places ? traces : std::max(0, places - 1), traces);
}

QRectF GraphLayout::overlayLine(const GraphModel& model, std::size_t row) const
{
    const int index = model.traces().shown()[row];
    const QRectF area = this->area(index);
    // The cursor's time stands in the first line of a single graph.
    const double line = static_cast<double>(row) + (model.settings().cursorOn ? 1.0 : 0.0);
    const double y = area.top() + (model.settings().displayMode == eSplit ? 2.0 : 3.0 + line * mLine);
    if (y + mLine > area.bottom())
        return {};
    const double text = canvasTextSize(overlayText(model, index), mTextSize, true).width();
    return {area.left() + 3, y, text + kSwatch + 8, mLine};
}

QString GraphLayout::overlayText(const GraphModel& model, int index) const
{
    const GraphParameter& parameter = *model.traces().at(index);
    const std::optional<double> value =
        model.settings().displayMode == eSplit ? std::nullopt : model.traces().valueAt(index, model.cursor().time);
    if (value && !mTable.isEmpty()) // which has the name: what lies over the plot is short then
        return parameter.unit.isEmpty() ? parameter.text(*value) : QStringLiteral("%1 [%2]").arg(parameter.text(*value), parameter.unit);
    const QString number = value ? QLatin1Char(' ') + parameter.text(*value) : QString();
    const auto room = static_cast<int>((mPlot.width() - kSwatch - 12) / mCharacter) - static_cast<int>(number.size());
    return shortName(parameter.label(), std::clamp(room, kFewestOfName, kLongestLabel)) + number;
}

int GraphLayout::stripAt(const GraphModel& model, double y) const
{
    int found = -1;
    for (const int index : model.traces().shown()) {
        if (found < 0 || y >= area(index).top())
            found = index;
    }
    return found;
}

int axisAt(const GraphLayout& layout, const QPointF& point)
{
    const auto found = std::ranges::find_if(layout.axes(), [&point](const ValueAxis& axis) { return axis.labels.contains(point); });
    return found == layout.axes().end() ? -1 : found->index;
}

double valueAt(double y, const QRectF& area, const ValueSpan& span)
{
    return area.height() > 0 ? span[0] + (area.bottom() - y) / area.height() * (span[1] - span[0]) : span[0];
}

} // namespace ZARN
