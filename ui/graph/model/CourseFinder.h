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

    std::optional<LoadedCard> mWanted;
    std::shared_ptr<const CycleCourse> mpFound;
    BackgroundTask mTask; // the last: it waits for work that refers to the others
};

} // namespace ZARN
