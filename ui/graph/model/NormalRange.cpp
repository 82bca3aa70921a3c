#include "ui/graph/model/NormalRange.h"

#include "trace/Trace.h"
#include "ui/canvas/ColourContrast.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ZARN {

namespace {

constexpr float kShare = 0.7F;    // of the trace's colour in its hatching
constexpr double kContrast = 3.0;
constexpr double kHatching = 7.0; // pixels from line to line
constexpr double kLeastHatched = 4.0;
constexpr double kKey = 18.0;     // of the hatching beside its name

} // namespace

std::vector<NormalStretch> normalStretches(const std::vector<NormalBand>& bands, std::span<const FlightPhases::Step> phases,
                                           std::span<const TimeSpan> flights, const Trace& trace)
{
    std::vector<NormalStretch> stretches;
    double from = -std::numeric_limits<double>::infinity();
    for (std::size_t flight = 0; flight < flights.size(); ++flight) {
        for (const FlightPhases::Step& step : phases) {
            const double start = std::max({step.from, flights[flight].start, from}), end = std::min(step.until, flights[flight].end);
            const auto band = std::ranges::find_if(bands, [&](const NormalBand& other) {
                return other.flight == static_cast<int>(flight + 1) && other.phase == phaseKey(step.phase) &&
                       other.parameter == trace.name() && other.unit == trace.parameter().unitMetric;
            });
            if (band == bands.end() || !(start < end))
                continue;
            const auto [lower, upper] =
                std::minmax({trace.decoder().toDisplayUnit(band->lower), trace.decoder().toDisplayUnit(band->upper)});
            stretches.push_back({{start, end}, lower, upper, band->flights});
        }
        from = std::max(from, flights[flight].end);
    }
    return stretches;
}

void NormalRange::draw(Canvas& canvas) const
{
    if (mModel.settings().displayMode != eSplit)
        return draw(canvas, mModel.traces().axis());
    for (const int index : mModel.traces().shown())
        draw(canvas, index);
}

/// Not filled, as the bands of limits are; without outlines, which would look like curves.
void NormalRange::hatch(Canvas& canvas, const QRectF& area, const QColor& colour)
{
    if (area.height() < kLeastHatched)
        return canvas.fillRect(area, colour);
    std::vector<QPointF> lines;
    // Rising by 45 degrees, at the same places whatever the part of a band that is seen.
    const double first = std::ceil((area.left() + area.top()) / kHatching) * kHatching;
    for (double sum = first; sum < area.right() + area.bottom(); sum += kHatching) {
        const double left = std::max(area.left(), sum - area.bottom()), right = std::min(area.right(), sum - area.top());
        lines.insert(lines.end(), {QPointF(left, sum - left), QPointF(right, sum - right)});
    }
    canvas.lines(lines, {colour, 1.0});
}

void NormalRange::drawKey(Canvas& canvas, const GraphLabels& labels) const
{
    std::size_t least = std::numeric_limits<std::size_t>::max(), most = 0;
    for (const int index : mModel.traces().shown()) {
        const GraphParameter& trace = *mModel.traces().at(index);
        for (const NormalStretch& stretch : trace.pStates ? std::vector<NormalStretch>() : trace.normal) {
            least = std::min(least, stretch.flights);
            most = std::max(most, stretch.flights);
        }
    }
    if (most == 0 || !mModel.settings().legendOn)
        return;
    const QString count = least < most ? QString(QLatin1String("%1-%2")).arg(least).arg(most) : QString::number(most);
    const QString text = QCoreApplication::translate("ZARN::NormalRange", "usual: 5 to 95 % of %1 flights").arg(count);
    const CanvasText style = labels.style(Qt::AlignLeft | Qt::AlignTop);
    const QRectF& plot = mLayout.plot();
    const double left = plot.right() - canvas.textSize(text, style).width(), top = plot.top() - mLayout.line() - 2;
    const bool isNamed = mModel.settings().displayMode != eSplit && mModel.traces().count() > 1; // by the axis, in the same line
    if (left - kKey < (isNamed ? plot.center().x() : plot.left()))
        return;
    hatch(canvas, QRectF(left - kKey - 4, top + 2, kKey, mLayout.line() - 5), mModel.colours().label);
    canvas.text(QPointF(left, top), text, style);
}

void NormalRange::draw(Canvas& canvas, int index) const
{
    const GraphParameter* pTrace = mModel.traces().at(index);
    if (!pTrace || pTrace->pStates)
        return;
    constexpr double kLeast = 1.0; // pixels: a band of one value is seen, too
    const QRectF area = mLayout.area(index);
    const ValueSpan span = mModel.valueSpan(index);
    const QColor colour = readableOn(mModel.colours().background, mixed(mModel.colours().background, pTrace->drawnColour, kShare), kContrast);
    for (const auto& [time, lower, upper, flights] : pTrace->normal) {
        const double top = GraphLayout::yOf(upper, area, span), bottom = std::max(GraphLayout::yOf(lower, area, span), top + kLeast);
        const QRectF part = QRectF(QPointF(mLayout.xOf(time.start), top), QPointF(mLayout.xOf(time.end), bottom)).intersected(area);
        if (!part.isEmpty())
            hatch(canvas, part, colour);
    }
}

} // namespace ZARN
