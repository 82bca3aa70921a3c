#pragma once

#include "app/LatestTask.h"
#include "card/LoadedCard.h"
#include "ui/graph/model/CycleCourse.h"

namespace ZARN {

/// What the map tells of a loaded cycle beside the path: phases, flights, incidents, where nothing was received, and the path of the whole
/// cycle where a flight of it is selected.
struct MapCourse {
    CycleCourse course;
    std::vector<TimeSpan> gaps;                                 ///< in order of time
    std::shared_ptr<const std::vector<FlightPathPoint>> pWhole; ///< null where the path is the whole one

    /// Takes a while.
    [[nodiscard]] static MapCourse of(const LoadedCard& loaded);
    /// The times between fixes that are farther apart than is usual in the record, and than some seconds.
    [[nodiscard]] static std::vector<TimeSpan> receptionGaps(const LoadedCard& loaded);
};

/// Finds it while the window goes on.
class MapCourseFinder : public QObject {
    Q_OBJECT

public:
    explicit MapCourseFinder(QObject* pParent = nullptr);

    /// What an earlier call asked for is no longer wanted.
    void start(LoadedCard loaded);
    void stop() { mTask.stop(); }

Q_SIGNALS:
    void signalFound(std::shared_ptr<const ZARN::MapCourse> pCourse);

private:
    std::shared_ptr<const MapCourse> mpFound;
    LatestTask mTask; // the last: it waits for work that refers to the others
};

} // namespace ZARN
