// The samples of GraphModel and what a frame is made of.

#include "ui/graph/model/GraphModel.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kMargin = 0.1; // of the span of values, below and above an autoscaled trace
constexpr double kSmallestSpan = 0.001;

} // namespace

void GraphModel::putValue(int index, double value, bool repaint)
{
    GraphParameter* pParameter = at(index);
    if (!pParameter || !mDataPresent)
        return;
    pParameter->samples.append(mTime, value);
    pParameter->valuePut = true;
    ++mGeneration;
    if (repaint)
        changed();
}

void GraphModel::putValues(int index, std::span<const double> times, std::span<const double> values)
{
    GraphParameter* pParameter = at(index);
    const std::size_t count = std::min(times.size(), values.size());
    if (!pParameter || count == 0)
        return;
    std::vector<double> held(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(count));
    for (double& time : held)
        time = std::isfinite(time) ? time : 0.0;
    setTime(held.back());
    pParameter->samples.append(held, values.first(count));
    pParameter->valuePut = true;
    ++mGeneration;
}

void GraphModel::reserve(int index, std::size_t samples)
{
    if (GraphParameter* pParameter = at(index))
        pParameter->samples.reserve(samples);
}

bool GraphModel::getValue(int index, double time, double& value) const
{
    const GraphParameter* pParameter = parameter(index);
    const auto position = pParameter ? pParameter->samples.lastAtOrBefore(time) : std::nullopt;
    if (!position)
        return false;
    value = pParameter->samples.value(*position);
    return true;
}

std::optional<double> GraphModel::valueAtCursor(int index) const
{
    const GraphParameter* pParameter = parameter(index);
    if (!pParameter || pParameter->samples.empty())
        return std::nullopt;
    return pParameter->samples.value(pParameter->samples.lastAtOrBefore(mCursorTime).value_or(0));
}

void GraphModel::getParameterRangeX(int index, double& first, double& last) const
{
    const GraphParameter* pParameter = parameter(index);
    const bool isEmpty = !pParameter || pParameter->samples.empty();
    first = isEmpty ? 0.0 : pParameter->samples.time(0);
    last = isEmpty ? 0.0 : pParameter->samples.time(pParameter->samples.size() - 1);
}

void GraphModel::getParameterRangeY(int index, double& lower, double& upper) const
{
    const GraphParameter* pParameter = parameter(index);
    lower = pParameter ? pParameter->lower : 0.0;
    upper = pParameter ? pParameter->upper : 0.0;
}

double GraphModel::getCurrentAverageValue() const
{
    double sum = 0.0;
    for (const int index : mShown)
        sum += mParameters[static_cast<std::size_t>(index)].samples.average();
    return mShown.empty() ? 0.0 : sum / static_cast<double>(mShown.size());
}

void GraphModel::clear()
{
    for (GraphParameter& parameter : mParameters) {
        parameter.samples.clear();
        parameter.frame.clear();
        parameter.valuePut = false;
    }
    mTopMarkers.clear();
    ++mGeneration;
    changed();
}

void GraphModel::reset()
{
    clear();
    mMarkerStart = mMarkerEnd = 0.0;
    mCursorTime = mCursorValue = 0.0;
    mTime = 0.0;
    mDataPresent = false;
    mYmin = -0.5;
    mYmax = 1.5;
    setWindow(0.0, 60.0);
}

void GraphModel::setPlot(int columns, double height)
{
    mColumns = std::max(1, columns);
    mPlotHeight = height;
}

void GraphModel::recalcFrameBuffer()
{
    const FrameKey key{mXmin, mXmax, mColumns, mGeneration};
    if (key == mFrameKey)
        return;
    mFrameKey = key;
    for (const int index : mShown) {
        GraphParameter& parameter = mParameters[static_cast<std::size_t>(index)];
        mBuilder.build(parameter.samples, mXmin, mXmax, mColumns, parameter.frame);
    }
}

void GraphModel::scale(GraphParameter& parameter) const
{
    if (!mAutoScaleY) {
        // The user types the two one after the other, so that they may meet or pass one another.
        const double margin = mYmin == mYmax ? kMargin * kSmallestSpan : 0.0;
        parameter.lower = std::min(mYmin, mYmax) - margin;
        parameter.upper = std::max(mYmin, mYmax) + margin;
        return;
    }
    const ValueRange<double>& values = parameter.samples.extremes();
    if (values.isEmpty()) {
        parameter.lower = mYRange[0];
        parameter.upper = mYRange[1];
        return;
    }
    const double margin = kMargin * std::max(values.greatest - values.least, kSmallestSpan) + mSpread;
    parameter.lower = values.least - margin;
    parameter.upper = values.greatest + margin;
    if (!(parameter.upper > parameter.lower) || !std::isfinite(parameter.upper - parameter.lower)) {
        // Numbers so great that the margin is lost in them, or that their span has no number.
        parameter.lower = values.least - std::abs(values.least) * kMargin;
        parameter.upper = values.greatest + std::abs(values.greatest) * kMargin;
    }
}

void GraphModel::extendToPresent()
{
    if (mGraphMode != eAutomatic || mOffline || !mDataPresent)
        return;
    for (const int index : mShown) {
        GraphParameter& parameter = mParameters[static_cast<std::size_t>(index)];
        const std::size_t count = parameter.samples.size();
        if (!parameter.valuePut && count > 0 && parameter.samples.time(count - 1) <= mTime)
            putValue(index, parameter.samples.value(count - 1), false);
    }
}

void GraphModel::calcFrame()
{
    extendToPresent();
    calcRanges();
    mModeChanged = false;
    recalcFrameBuffer();
}

void GraphModel::calcRanges()
{
    if (mAutoScaleY) {
        mYmin = mYRange[0];
        mYmax = mYRange[1];
    }
    mDataSpan = {0.0, 0.0};
    bool hasSpan = false;
    for (GraphParameter& parameter : mParameters) {
        scale(parameter);
        if (parameter.samples.empty())
            continue;
        const double first = parameter.samples.time(0), last = parameter.samples.time(parameter.samples.size() - 1);
        mDataSpan = hasSpan ? std::array{std::min(mDataSpan[0], first), std::max(mDataSpan[1], last)} : std::array{first, last};
        hasSpan = true;
    }
    const double height = mDisplayMode == eSplit && !mShown.empty() ? mPlotHeight / static_cast<double>(mShown.size()) : mPlotHeight;
    for (std::size_t i = 0; i < mShown.size(); ++i) {
        GraphParameter& parameter = mParameters[static_cast<std::size_t>(mShown[i])];
        parameter.height = height;
        parameter.origin = mDisplayMode == eSplit ? height * static_cast<double>(i) : 0.0;
    }
}

bool GraphModel::recalculate()
{
    const bool isChanged = !(mFrameKey == FrameKey{mXmin, mXmax, mColumns, mGeneration});
    recalcFrameBuffer();
    if (isChanged)
        changed();
    return mCountdown-- >= 1;
}

std::array<double, 2> GraphModel::valueRange(int index) const
{
    const GraphParameter* pParameter = parameter(index);
    if (!pParameter)
        return {mYmin, mYmax};
    return {pParameter->lower, pParameter->upper};
}

} // namespace ZARN
