#include "ui/graph/model/GraphLayout.h"

#include "ui/canvas/CanvasFont.h"
#include "ui/graph/model/AxisTicks.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kGap = 6.0;
constexpr double kHandleRoom = 22.0;
constexpr double kSmallestPlot = 60.0;
constexpr double kTablePart = 0.38; // of the view's height at most
constexpr int kNumber = 9;          // characters of a number in the legend, with the gap before it

int longestName(const GraphModel& model)
{
    qsizetype longest = 0;
    for (const int index : model.shown())
        longest = std::max(longest, model.parameter(index)->name.size());
    return static_cast<int>(std::min<qsizetype>(longest, GraphLayout::kLongestName));
}

int longestUnit(const GraphModel& model)
{
    qsizetype longest = 0;
    for (const int index : model.shown())
        longest = std::max(longest, model.parameter(index)->unit.size());
    return static_cast<int>(std::min<qsizetype>(longest, GraphLayout::kLongestName / 2)) + 2;
}

} // namespace

GraphLayout::GraphLayout(const GraphModel& model, const QSizeF& size, double textSize)
    : mWidth(size.width()), mTextSize(textSize), mLine(canvasTextSize(QStringLiteral("0"), textSize, true).height() + 2),
      mCharacter(canvasAdvance(textSize)), mNameLength(longestName(model)), mXmin(model.xmin())
{
    const double top = mLine + kGap;
    double bottom = size.height() - mLine - 2 * kGap;
    if (model.hasMarkerRange() && model.nrActive() > 0) {
        const auto rows = static_cast<double>(model.nrActive()) + 1;
        const double height = std::min(rows, std::max(2.0, std::floor(size.height() * kTablePart / mLine))) * mLine + kGap;
        mTable = QRectF(kGap, size.height() - height, std::max(0.0, size.width() - 2 * kGap), height - kGap);
        bottom -= height;
    }
    placeLegend(model, size.width());
    const double right = mLegend == ELegend::eNone ? size.width() - 2 * kGap : mLegendRect.left() - kGap;
    const double height = std::max(kSmallestPlot, std::floor(bottom - top));
    const double left = std::ceil((model.displayMode() == eSplit ? kHandleRoom : kGap) + axisWidth(model, height) + kGap);
    mPlot = QRectF(left, top, std::max(kSmallestPlot, std::floor(right - left)), height);
    mLegendRect.setRect(mLegendRect.left(), mPlot.top(), mLegendRect.width(), mPlot.height());
    const double width = model.width();
    mPixelsPerSecond = mPlot.width() / (width > 0 ? width : GraphModel::kSmallestWindow);
}

void GraphLayout::placeLegend(const GraphModel& model, double width)
{
    if (!model.isLegendOn() || model.nrActive() == 0)
        return;
    struct Kind {
        ELegend kind;
        int characters;
        double part; // of the view's width at most
    };
    const int names = mNameLength + 3 + longestUnit(model);
    for (const Kind& kind : {Kind{ELegend::eFull, names + 3 * kNumber, 0.42}, Kind{ELegend::eCursor, names + kNumber, 0.4},
                             Kind{ELegend::eNames, names, 0.36}}) {
        const double wanted = std::ceil(kind.characters * mCharacter + 2 * kGap);
        if (wanted > width * kind.part)
            continue;
        mLegend = kind.kind;
        mLegendRect = QRectF(std::floor(width - wanted - kGap), 0, wanted, 0);
        return;
    }
}

double GraphLayout::axisWidth(const GraphModel& model, double height) const
{
    qsizetype longest = 4;
    const auto measure = [&](int index, double length) {
        const std::array<double, 2> range = model.valueRange(index);
        const AxisTicks ticks(range[0], range[1], length, kValueSpacing * mLine);
        for (const AxisTick& tick : ticks.ticks()) {
            if (tick.isMajor)
                longest = std::max(longest, ticks.valueLabel(tick.value).size());
        }
    };
    if (model.displayMode() == eSplit) {
        for (const int index : model.shown())
            measure(index, height / model.nrActive());
    } else {
        measure(model.axisParameter(), height);
    }
    return static_cast<double>(std::min<qsizetype>(longest, 14)) * mCharacter + kGap;
}

QRectF GraphLayout::area(const GraphParameter& parameter) const
{
    const double top = std::round(parameter.origin), bottom = std::round(parameter.origin + parameter.height);
    return {mPlot.left(), mPlot.top() + top, mPlot.width(), bottom - top};
}

QRectF GraphLayout::legendLine(const GraphModel& model, std::size_t row) const
{
    if (!model.isLegendOn() || row >= model.shown().size())
        return {};
    if (mLegend == ELegend::eNone)
        return overlayLine(model, row);
    if (model.displayMode() == eSplit) {
        // Rounded, some strips have room and others none: all go by the height before that.
        const GraphParameter& parameter = *model.parameter(model.shown()[row]);
        if (parameter.height >= mLine)
            return {mLegendRect.left(), area(parameter).top(), mLegendRect.width(), mLine};
    }
    // The first line is the header, and the last one says how many found no room.
    const auto line = static_cast<double>(row + 1);
    const auto rows = static_cast<double>(model.shown().size()) + 1;
    const double room = std::floor(mLegendRect.height() / mLine);
    if (line >= (rows > room ? room - 1 : room))
        return {};
    return {mLegendRect.left(), mLegendRect.top() + line * mLine, mLegendRect.width(), mLine};
}

QRectF GraphLayout::overlayLine(const GraphModel& model, std::size_t row) const
{
    const GraphParameter& parameter = *model.parameter(model.shown()[row]);
    const QRectF area = this->area(parameter);
    // The cursor's time stands in the first line of a single graph.
    const double line = static_cast<double>(row) + (model.isCursorOn() ? 1.0 : 0.0);
    const double y = area.top() + (model.displayMode() == eSplit ? 2.0 : 3.0 + line * mLine);
    if (y + mLine > area.bottom())
        return {};
    const QString text = shortened(parameter.label(), kLongestLabel);
    return {area.left() + 3, y, canvasTextSize(text, mTextSize, true).width() + kSwatch + 8, mLine};
}

int GraphLayout::legendAt(const GraphModel& model, const QPointF& point) const
{
    for (std::size_t row = 0; row < model.shown().size(); ++row) {
        if (legendLine(model, row).contains(point))
            return model.shown()[row];
    }
    return -1;
}

int GraphLayout::stripAt(const GraphModel& model, double y) const
{
    int found = -1;
    for (const int index : model.shown()) {
        if (found < 0 || y >= area(*model.parameter(index)).top())
            found = index;
    }
    return found;
}

double GraphLayout::valueAt(double y, const QRectF& area, const std::array<double, 2>& range)
{
    return area.height() > 0 ? range[0] + (area.bottom() - y) / area.height() * (range[1] - range[0]) : range[0];
}

QString GraphLayout::shortened(const QString& name, int length)
{
    return name.size() <= length ? name : name.left(std::max(0, length - 1)) + QChar(0x2026);
}

} // namespace ZARN
