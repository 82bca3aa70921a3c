#include "ui/graph/model/TraceBuilder.h"

#include "app/Numeric.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ZARN {

namespace {

constexpr std::size_t kSamplesPerColumn = 4;

/// Where in its column the vertex number `index` of four stands: near the column's middle, so that no rounding moves it to the next.
constexpr double placeInColumn(int index)
{
    return 0.2 + 0.2 * index;
}

} // namespace

TraceBuilder::Window TraceBuilder::window(const SampleSeries& samples, double begin, double end)
{
    if (samples.empty() || std::isnan(begin) || std::isnan(end))
        return {};
    std::size_t first = samples.firstAtOrAfter(begin);
    // From the second sample on one step back; the second one itself stays, as the recorder's own display has it.
    if (first > 1)
        --first;
    if (first == samples.size())
        return {}; // the only sample, before the window
    const std::size_t last = std::max(std::min(samples.firstAtOrAfter(end), samples.size() - 1), first);
    return {first, last};
}

void TraceBuilder::build(const SampleSeries& samples, double begin, double end, int columns, std::vector<QPointF>& vertices)
{
    vertices.clear();
    const Window visible = window(samples, begin, end);
    if (visible.first > visible.last)
        return;
    mGapsLeft = mGaps.subspan(static_cast<std::size_t>(std::ranges::lower_bound(mGaps, visible.first) - mGaps.begin()));
    const auto most = static_cast<std::size_t>(std::max(columns, 1)) * kSamplesPerColumn;
    if (visible.last - visible.first < most)
        addSamples(samples, begin, visible.first, visible.last + 1, vertices);
    else if (samples.ascending())
        addColumns(samples, begin, end, std::max(columns, 1), visible, vertices);
    else
        addUnordered(samples, begin, end, std::max(columns, 1), visible, vertices);
}

void TraceBuilder::addSamples(const SampleSeries& samples, double begin, std::size_t first, std::size_t last,
                              std::vector<QPointF>& vertices)
{
    for (; first < last; ++first) {
        if (!mGapsLeft.empty())
            addGap(first, vertices);
        vertices.emplace_back(samples.time(first) - begin, samples.value(first));
    }
}

void TraceBuilder::addGap(std::size_t position, std::vector<QPointF>& vertices)
{
    while (!mGapsLeft.empty() && mGapsLeft.front() < position)
        mGapsLeft = mGapsLeft.subspan(1);
    if (!mGapsLeft.empty() && mGapsLeft.front() == position && !vertices.empty())
        vertices.emplace_back(vertices.back().x(), std::numeric_limits<double>::quiet_NaN());
}

void TraceBuilder::addColumns(const SampleSeries& samples, double begin, double end, int columns, Window window,
                              std::vector<QPointF>& vertices)
{
    const double step = (end - begin) / columns;
    mPositions.resize(static_cast<std::size_t>(columns) + 1);
    mRanges.resize(static_cast<std::size_t>(columns));
    samples.positionsAt(begin, step, mPositions);
    mPositions.back() = static_cast<uint32_t>(samples.firstAtOrAfter(end));
    for (uint32_t& position : mPositions)
        position = std::min(position, mPositions.back());
    samples.ranges(mPositions, mRanges);
    addSamples(samples, begin, window.first, mPositions.front(), vertices);
    for (int column = 0; column < columns; ++column)
        addColumn(samples, begin, step, column, vertices);
    addSamples(samples, begin, mPositions.back(), window.last + 1, vertices);
}

void TraceBuilder::addColumn(const SampleSeries& samples, double begin, double step, int column, std::vector<QPointF>& vertices)
{
    const std::size_t first = mPositions[static_cast<std::size_t>(column)], last = mPositions[static_cast<std::size_t>(column) + 1];
    if (last <= first + kSamplesPerColumn)
        return addSamples(samples, begin, first, last, vertices);
    if (!mGapsLeft.empty())
        addGap(first, vertices);
    const ValueRange<double>& range = mRanges[static_cast<std::size_t>(column)];
    const double values[] = {samples.value(first), range.least, range.greatest, samples.value(last - 1)};
    for (int i = 0; i < 4; ++i)
        vertices.emplace_back(step * (column + placeInColumn(i)), values[i]);
}

void TraceBuilder::addUnordered(const SampleSeries& samples, double begin, double end, int columns, Window window,
                                std::vector<QPointF>& vertices)
{
    // Times that go back belong to earlier columns: each sample is looked at. Only damaged recordings come here.
    struct Column {
        double first = 0.0;
        double last = 0.0;
        ValueRange<double> range;
    };
    std::vector<Column> found(static_cast<std::size_t>(columns));
    const double step = (end - begin) / columns;
    for (std::size_t i = window.first; i <= window.last; ++i) {
        const double place = std::floor((samples.time(i) - begin) / step);
        if (!(place >= 0) || !(place < columns))
            continue;
        Column& column = found[saturatingCast<std::size_t>(place)];
        column.last = samples.value(i);
        if (column.range.isEmpty())
            column.first = column.last;
        column.range.add(column.last);
    }
    for (int i = 0; i < columns; ++i) {
        const Column& column = found[static_cast<std::size_t>(i)];
        if (column.range.isEmpty())
            continue;
        const double values[] = {column.first, column.range.least, column.range.greatest, column.last};
        for (int k = 0; k < 4; ++k)
            vertices.emplace_back(step * (i + placeInColumn(k)), values[k]);
    }
}

} // namespace ZARN
