#include "ui/graph/model/GraphModel.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr int kFirstParameters = 6;
constexpr double kWidestWindow = 1e7; // seconds; wheel and keys stop there
constexpr double kNarrowHalf = 0.5;   // of what the wheel opens where the window has no width
constexpr float kEdge = 0.1F;         // of the window, between a time that is kept inside and the edge

} // namespace

GraphModel::GraphModel(QObject* pParent) : QObject(pParent)
{
    setMaxParameters(kFirstParameters);
}

void GraphModel::windowChanged()
{
    mCountdown = kCountdown;
    Q_EMIT signalRecalculate();
    recalcFrameBuffer();
    changed();
}

void GraphModel::setWindow(double xmin, double xmax)
{
    if (!std::isfinite(xmin) || !std::isfinite(xmax))
        return;
    mXmin = xmin;
    mXmax = xmax;
    windowChanged();
}

void GraphModel::setXmin(float seconds)
{
    setWindow(static_cast<double>(seconds), mXmax);
}

void GraphModel::setXmax(float seconds)
{
    setWindow(mXmin, static_cast<double>(seconds));
}

void GraphModel::setT0(float seconds)
{
    const auto start = static_cast<double>(seconds);
    setWindow(start, start + width());
}

void GraphModel::setXrange(float seconds)
{
    const auto range = static_cast<double>(seconds);
    if (mGraphMode == eAutomatic)
        setWindow(mXmax - range, mXmax);
    else
        setWindow(mXmin, mXmin + range);
}

void GraphModel::zoomToMarker()
{
    const auto [start, end] = std::minmax(mMarkerStart, mMarkerEnd);
    if (start == end)
        return;
    mGraphMode = eManual;
    setWindow(start, std::max(end, start + kSmallestWindow));
    Q_EMIT signalManMode();
}

void GraphModel::zoomAbout(double time, double factor)
{
    const double wanted = width() * factor;
    if (!std::isfinite(time) || (wanted < kSmallestWindow && factor < 1) || (wanted > kWidestWindow && factor > 1))
        return;
    if (!(width() > 0)) // that of a record of one moment, which no factor widens
        return setWindow(mXmin - kNarrowHalf, mXmin + kNarrowHalf);
    setWindow(time - (time - mXmin) * factor, time - (time - mXmax) * factor);
}

void GraphModel::setTime(double seconds)
{
    const double time = std::isnan(seconds) ? 0.0 : std::clamp(seconds, 0.0, kLatestTime);
    mTime = time;
    mDataPresent = true;
    for (GraphParameter& parameter : mParameters)
        parameter.valuePut = false;
    if (mGraphMode == eAutomatic) {
        const double width = this->width();
        mXmax = time;
        mXmin = time - width;
    }
    if (mModeChanged)
        recalcFrameBuffer();
    changed();
}

void GraphModel::takeOverTime()
{
    if (mGraphMode == eManual)
        return;
    setGraphMode(eManual);
    Q_EMIT signalManMode();
}

void GraphModel::setYmin(float value)
{
    mYmin = static_cast<double>(value);
    windowChanged();
}

void GraphModel::setYmax(float value)
{
    mYmax = static_cast<double>(value);
    windowChanged();
}

void GraphModel::setAutoScaleY(bool on)
{
    mAutoScaleY = on;
    changed();
}

void GraphModel::setAutoScaleYSpread(double spread)
{
    mSpread = std::isfinite(spread) ? spread : 0.0;
    changed();
}

void GraphModel::setYRange(double lower, double upper)
{
    mYRange = {lower, upper};
    changed();
}

void GraphModel::setYRangeOn(bool on)
{
    mYRangeOn = on;
    changed();
}

void GraphModel::setCursorPosition(double time)
{
    if (!std::isfinite(time))
        return;
    mCursorTime = time;
    if (mCursorMode == eCenter) {
        const double half = width() / 2;
        mXmin = time - half;
        mXmax = time + half;
        recalcFrameBuffer();
    }
    changed();
}

void GraphModel::keepInside(double time)
{
    const auto width = static_cast<float>(this->width());
    const auto margin = static_cast<double>(kEdge * width);
    double xmin = mXmin, xmax = mXmax;
    if (xmin + margin > time) {
        xmin = time - margin;
        xmax = xmin + static_cast<double>(width);
    }
    if (xmax - margin < time) {
        xmin = time + margin - static_cast<double>(width);
        xmax = time + margin;
    }
    if (xmin != mXmin || xmax != mXmax)
        setWindow(xmin, xmax);
}

void GraphModel::moveCursor(double time, double value, int index)
{
    mCursorIndex = index;
    mCursorValue = value;
    setCursorPosition(time);
    Q_EMIT signalCursor(static_cast<float>(mCursorTime), mCursorValue);
}

void GraphModel::setCursorMoving(bool on)
{
    if (mCursorMoving == on)
        return;
    mCursorMoving = on;
    changed();
}

void GraphModel::setMarker(double start, double end)
{
    if (!std::isfinite(start) || !std::isfinite(end))
        return;
    mMarkerStart = start;
    mMarkerEnd = end;
    changed();
}

std::vector<MarkerValues> GraphModel::markerValues() const
{
    std::vector<MarkerValues> out;
    const auto [start, end] = std::minmax(mMarkerStart, mMarkerEnd);
    for (const int index : mShown)
        out.push_back(MarkerValues::of(mParameters[static_cast<std::size_t>(index)], start, end));
    return out;
}

void GraphModel::addTopMarker(int index, double time)
{
    mTopMarkers.push_back({index, time});
    changed();
}

void GraphModel::setGraphMode(eGraphMode mode)
{
    mGraphMode = mode;
    mModeChanged = true;
    changed();
}

void GraphModel::setDisplayMode(eDisplayMode mode)
{
    mDisplayMode = mode;
    changed();
}

void GraphModel::setCursorMode(eCursorMode mode)
{
    mCursorMode = mode;
    changed();
}

void GraphModel::activateGrid(bool on)
{
    mGridOn = on;
    changed();
}

void GraphModel::activateCursor(bool on)
{
    mCursorOn = on;
    changed();
}

void GraphModel::activateLegend(bool on)
{
    mLegendOn = on;
    changed();
}

void GraphModel::setOfflineMode(bool on)
{
    mOffline = on;
    changed();
}

void GraphModel::setColours(const GraphColours& colours)
{
    mColours = colours;
    updateColours();
    changed();
}

void GraphModel::setMessage(const QString& text)
{
    mMessage = text;
    changed();
}

} // namespace ZARN
