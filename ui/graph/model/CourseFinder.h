#pragma once

#include "app/BackgroundTask.h"
#include "ui/graph/model/CycleCourse.h"

#include <optional>

namespace ZARN {

/// Finds the course of what is loaded while the window goes on.
class CourseFinder : public QObject {
    Q_OBJECT

public:
    explicit CourseFinder(QObject* pParent = nullptr);

    /// What an earlier call asked for is no longer wanted.
    void start(LoadedCard loaded);
    void stop();

Q_SIGNALS:
    void signalFound(std::shared_ptr<const ZARN::CycleCourse> pCourse);

private:
    void begin();
    void slotFinished();

    /// Whether the course that was found last is also that of what is loaded now.
    [[nodiscard]] bool isFound(const LoadedCard& loaded) const;

    std::optional<LoadedCard> mWanted;
    std::weak_ptr<const RecordData> mFoundIn; ///< the record, decoding and flights of what was found, or is looked for
    DecodingContext mFoundBy;
    std::vector<RecordFlight> mFoundWith;
    double mFoundUntil = 0.0; ///< where the data ended: they may grow
    std::shared_ptr<const CycleCourse> mpFound;
    BackgroundTask mTask; // the last: it waits for work that refers to the others
};

} // namespace ZARN
