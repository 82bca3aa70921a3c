#include "ui/data/model/PositionMarks.h"

#include "ui/graph/model/CourseBand.h"

#include <QStringList>

#include <algorithm>

namespace ZARN {

PositionMarks::PositionMarks(const CycleCourse& course, double start, double end)
{
    if (!(end > start))
        return;
    const auto share = [start, end](double time) { return std::clamp((time - start) / (end - start), 0.0, 1.0); };
    for (const FlightPhases::Step& step : course.phases) {
        if (step.phase != EFlightPhase::eOff && share(step.until) > share(step.from))
            mBands.push_back({share(step.from), share(step.until), step.phase});
    }
    for (const CycleCourse::Mark& incident : course.incidents) {
        if (incident.span.end >= start && incident.span.start <= end) // of a flight alone the others are elsewhere
            mMarks.push_back({share(incident.span.start), share(incident.span.end), incident.state, incident.title});
    }
    std::ranges::stable_sort(mMarks, {}, &Mark::state);
}

QString PositionMarks::text(double share, double near) const
{
    QStringList lines;
    const auto band = std::ranges::find_if(mBands, [share](const Band& one) { return share >= one.from && share <= one.until; });
    if (band != mBands.end())
        lines << CourseBand::phaseName(band->phase);
    for (auto mark = mMarks.rbegin(); mark != mMarks.rend(); ++mark) {
        if (share >= mark->from - near && share <= mark->until + near)
            lines << mark->title;
    }
    return lines.join('\n');
}

} // namespace ZARN
