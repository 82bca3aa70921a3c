#include "ui/graph/model/GhostLines.h"

#include "app/Numeric.h"
#include "ui/graph/model/StateSteps.h"
#include "ui/graph/model/TraceGaps.h"
#include "ui/graph/model/TraceStroke.h"

#include <cmath>
#include <limits>

namespace ZARN {

namespace {

constexpr double kDash = 5.0;   // pixels
constexpr int kColumns = 32;    // of a piece
constexpr double kColumn = 2.0; // pixels of the screen: it stands behind, and the extremes of two tell as much at half the cost
constexpr double kSame = 1e-9;  // by which a length may differ that was worked out anew

} // namespace

void GhostLines::update(const GraphModel& model, const GraphLayout& layout, double ratio)
{
    const std::shared_ptr<const Ghost>& pGhost = model.scenery().ghost();
    const double length = kColumns * kColumn / (layout.pixelsPerSecond() * ratio);
    const bool isSameLength = std::fabs(length - mLength) <= kSame * length;
    if (mpGhost != pGhost || mGapsOn != model.traces().gapsOn() || (pGhost && mGeneration != pGhost->traces.generation()))
        mLines.clear();
    mpGhost = pGhost;
    mGapsOn = model.traces().gapsOn();
    if (!pGhost)
        return;
    mGeneration = pGhost->traces.generation();
    if (!isSameLength) {
        mLength = length;
        mPixelsPerSecond = layout.pixelsPerSecond();
        for (auto& [index, line] : mLines)
            line.pieces.clear();
    }
    const TimeWindow window = model.window().movedBy(-model.scenery().ghostShift());
    mWindowBegin = window.begin();
    mFirst = saturatingCast<int64_t>(std::floor(window.begin() / mLength));
    mLast = saturatingCast<int64_t>(std::floor(window.end() / mLength));
    const bool isSplit = model.settings().displayMode == eSplit;
    for (const int index : model.traces().shown()) {
        // In one area for all, those of every trace would hide each other.
        if (!isShown(pGhost->traces, index) || (!isSplit && index != model.traces().axis())) {
            mLines.erase(index);
            continue;
        }
        updateLine(index, layout.area(index).height(), model.valueSpan(index));
    }
}

void GhostLines::updateLine(int index, double height, const ValueSpan& span)
{
    const GraphParameter& trace = *mpGhost->traces.at(index);
    const auto [found, isNew] = mLines.try_emplace(index);
    Line& line = found->second;
    if (isNew && mGapsOn)
        line.gaps = TraceGaps().of(trace.samples, trace.breaks);
    if (line.height != height || line.span != span)
        line.pieces.clear();
    line.height = height;
    line.span = span;
    const int64_t beside = mLast - mFirst + 1; // what has just gone out of sight may come back
    std::erase_if(line.pieces, [&](const auto& entry) { return entry.first < mFirst - beside || entry.first > mLast + beside; });
    for (int64_t place = mFirst; place <= mLast; ++place) {
        if (!line.pieces.contains(place))
            line.pieces.emplace(place, piece(trace, line, place));
    }
}

std::vector<QPointF> GhostLines::piece(const GraphParameter& trace, const Line& line, int64_t place)
{
    std::vector<QPointF> points;
    mBuilder.setGaps(line.gaps);
    mBuilder.build(trace.samples, begin(place), begin(place) + mLength, kColumns, points);
    if (trace.pStates)
        makeSteps(points);
    const QRectF area(0, 0, 1, line.height);
    for (QPointF& point : points)
        point = {point.x() * mPixelsPerSecond, GraphLayout::yOf(point.y(), area, line.span)};
    makeDashes(points, kDash, std::fmod(begin(place) * mPixelsPerSecond, 2 * kDash), 0, mLength * mPixelsPerSecond);
    return points;
}

void GhostLines::place(int index, const QRectF& area, std::vector<QPointF>& points) const
{
    points.clear();
    const auto line = mLines.find(index);
    if (line == mLines.end())
        return;
    for (auto entry = line->second.pieces.lower_bound(mFirst); entry != line->second.pieces.end() && entry->first <= mLast; ++entry) {
        // Vertices become pixels: the middle of a pixel is half a pixel after its edge.
        const QPointF corner(area.left() - 0.5 + (begin(entry->first) - mWindowBegin) * mPixelsPerSecond, area.top() - 0.5);
        if (!points.empty())
            points.emplace_back(corner.x(), std::numeric_limits<double>::quiet_NaN());
        for (const QPointF& point : entry->second)
            points.push_back(point + corner);
    }
}

} // namespace ZARN
