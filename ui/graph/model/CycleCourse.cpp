#include "ui/graph/model/CycleCourse.h"

#include "analysis/ReviewText.h"

#include <algorithm>

namespace ZARN {

CycleCourse CycleCourse::of(const LoadedCard& loaded)
{
    return of(reviewCycle(loaded.values(), loaded.flights, loaded.wholeEnd, EKeyValues::eNone, EStops::eInTheAir), loaded.flights);
}

CycleCourse CycleCourse::of(const CycleReview& review, const std::vector<RecordFlight>& flights)
{
    CycleCourse course;
    course.phases = review.phases;
    if (review.engine.isKnown())
        course.engine = review.engine.stretches();
    for (const RecordFlight& flight : flights) {
        course.flights.push_back({flight.takeOffTime, flight.landingTime});
        course.figured.push_back({flight.startTime, flight.endTime});
    }
    for (const Incident& incident : review.incidents)
        course.incidents.push_back({{incident.start, std::max(incident.start, incident.end)}, incident.state,
                                    QString::fromStdString(incident.title()), GraphMoment::of(incident)});
    course.heldPositions = ReviewText(review).heldPositions();
    return course;
}

} // namespace ZARN
