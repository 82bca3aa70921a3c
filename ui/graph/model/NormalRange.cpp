#include "ui/graph/model/NormalRange.h"

#include "trace/Trace.h"
#include "ui/canvas/ColourContrast.h"

#include <algorithm>

namespace ZARN {

namespace {

constexpr float kShare = 0.28F; // of the trace's colour in its band

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
            stretches.push_back({{start, end}, lower, upper});
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

void NormalRange::draw(Canvas& canvas, int index) const
{
    const GraphParameter* pTrace = mModel.traces().at(index);
    if (!pTrace || pTrace->pStates)
        return;
    constexpr double kLeast = 1.0; // pixels: a band of one value is seen, too
    const QRectF area = mLayout.area(index);
    const ValueSpan span = mModel.valueSpan(index);
    const QColor colour = mixed(mModel.colours().background, pTrace->drawnColour, kShare); // opaque: blending costs more
    for (const auto& [time, lower, upper] : pTrace->normal) {
        const double top = GraphLayout::yOf(upper, area, span), bottom = std::max(GraphLayout::yOf(lower, area, span), top + kLeast);
        const QRectF part = QRectF(QPointF(mLayout.xOf(time.start), top), QPointF(mLayout.xOf(time.end), bottom)).intersected(area);
        if (!part.isEmpty())
            canvas.fillRect(part, colour);
    }
}

} // namespace ZARN
