#include "ui/graph/model/GraphModel.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr int kFirstTraces = 6;

/// Those of a graph that nobody has set up.
GraphData plainSettings()
{
    GraphData data;
    data.cursorMode = eFloating;
    data.backColor = QStringLiteral("#ffffff");
    data.gridColor = QStringLiteral("#ff4d4d");
    data.labelBackColor = QStringLiteral("#cccccc");
    data.scale = {};
    return data;
}

} // namespace

GraphModel::GraphModel(QObject* pParent)
    : QObject(pParent), mSettings(plainSettings()), mColours(mSettings), mScenery([this] { Q_EMIT signalRepaint(); }),
      mTraces([this] { Q_EMIT signalRepaint(); })
{
    mTraces.setCount(kFirstTraces);
}

void GraphModel::settingsChanged()
{
    mColours = GraphColours(mSettings);
    mTraces.setGround(mColours.background, mSettings.palette);
    mTraces.setGapsOn(mSettings.gapsOn || mSettings.isGrowing);
}

void GraphModel::setWindow(const TimeWindow& window)
{
    if (!window.isFinite() || window == mWindow)
        return;
    mWindow = window;
    Q_EMIT signalWindow();
    Q_EMIT signalRepaint();
}

void GraphModel::takeOverTime()
{
    if (mSettings.graphMode == eManual)
        return;
    mSettings.graphMode = eManual;
    Q_EMIT signalManMode();
}

void GraphModel::zoomToMarker()
{
    const auto [start, end] = mMarker.ordered();
    if (start == end)
        return;
    mSettings.graphMode = eManual;
    setWindow({start, std::max(end, start + TimeWindow::kSmallest)});
    Q_EMIT signalManMode();
}

void GraphModel::setCursorPosition(double time)
{
    if (!std::isfinite(time))
        return;
    mCursor.time = time;
    if (mSettings.cursorMode == eCenter)
        setWindow(mWindow.centredOn(time));
    Q_EMIT signalRepaint();
}

void GraphModel::moveCursor(double time, double value, int strip)
{
    mCursor.value = value;
    mCursor.strip = strip;
    setCursorPosition(time);
    Q_EMIT signalCursor(static_cast<float>(mCursor.time), mCursor.value);
}

void GraphModel::setCursorMoving(bool on)
{
    if (mCursor.isMoving == on)
        return;
    mCursor.isMoving = on;
    Q_EMIT signalRepaint();
}

void GraphModel::setMarker(const GraphMarker& marker)
{
    if (!marker.isFinite())
        return;
    mMarker = marker;
    Q_EMIT signalRepaint();
}

void GraphModel::addTopMarker(const TopMarker& marker)
{
    mTopMarkers.push_back(marker);
    Q_EMIT signalRepaint();
}

ValueSpan GraphModel::valueSpan(int index) const
{
    return mTraces.at(index) ? mSettings.scale.spanOf(mTraces, index) : mSettings.scale.shared();
}

void GraphModel::setTime(double seconds)
{
    mTime = std::isnan(seconds) ? 0.0 : std::clamp(seconds, 0.0, kLatestTime);
    mDataPresent = true;
    if (mSettings.graphMode == eAutomatic)
        mWindow = mWindow.endingAt(mTime);
    Q_EMIT signalRepaint();
}

void GraphModel::putValue(int index, double value, bool repaint)
{
    if (!mDataPresent)
        return;
    mTraces.append(index, {&mTime, 1}, {&value, 1});
    if (repaint)
        Q_EMIT signalRepaint();
}

void GraphModel::putValues(int index, std::span<const double> times, std::span<const double> values)
{
    const std::size_t count = std::min(times.size(), values.size());
    if (!mTraces.at(index) || count == 0)
        return;
    std::vector<double> held(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(count));
    for (double& time : held)
        time = std::isfinite(time) ? time : 0.0;
    setTime(held.back());
    mTraces.append(index, held, values.first(count));
}

void GraphModel::setOfflineMode(bool on)
{
    mIsOffline = on;
    Q_EMIT signalRepaint();
}

void GraphModel::clear()
{
    mTopMarkers.clear();
    mTraces.clearSamples();
}

void GraphModel::reset()
{
    clear();
    mMarker = {};
    mCursor.time = mCursor.value = 0.0;
    mTime = 0.0;
    mDataPresent = false;
    mSettings.scale.lower = plainSettings().scale.lower;
    mSettings.scale.upper = plainSettings().scale.upper;
    mSettings.scale.zoomed.clear();
    setWindow(TimeWindow());
}

void GraphModel::extendToPresent()
{
    if (mSettings.graphMode != eAutomatic || mIsOffline || !mDataPresent)
        return;
    for (const int index : mTraces.shown()) {
        const SampleSeries& samples = mTraces.at(index)->samples;
        if (!samples.empty() && samples.time(samples.size() - 1) < mTime)
            putValue(index, samples.value(samples.size() - 1), false);
    }
}

} // namespace ZARN
