#include "ui/graph/model/CycleCourse.h"

#include "analysis/CycleReview.h"

#include <algorithm>

namespace ZARN {

CycleCourse CycleCourse::of(const LoadedCard& loaded)
{
    const CycleReview review = reviewCycle(loaded.values(), loaded.flights, loaded.wholeEnd);
    CycleCourse course;
    course.phases = review.phases;
    if (review.engine.isKnown())
        course.engine = review.engine.stretches();
    for (const RecordFlight& flight : loaded.flights)
        course.flights.push_back({flight.takeOffTime, flight.landingTime});
    for (const Incident& incident : review.incidents) {
        const Episode& leading = incident.episodes[incident.leading];
        Mark mark{{incident.start, std::max(incident.start, incident.end)},
                  incident.state,
                  leading.peak ? leading.peakTime : leading.start,
                  QString::fromStdString(incident.title()),
                  {}};
        for (const Episode& episode : incident.episodes)
            mark.parameters.insert(episode.parameter);
        course.incidents.push_back(std::move(mark));
    }
    return course;
}

TimeSpan spanAround(const TimeSpan& incident)
{
    constexpr double kMargin = 0.2, kLeastLength = 10.0;
    const double half = std::max(incident.end - incident.start, kLeastLength) * (0.5 + kMargin);
    const double middle = (incident.start + incident.end) / 2;
    return {middle - half, middle + half};
}

} // namespace ZARN
