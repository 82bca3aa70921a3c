#pragma once

#include "app/BackgroundTask.h"

namespace ZARN {

/// Runs the newest of several pieces of work on a thread of its own: what was begun before is cancelled, and told nobody of. As the task in
/// it, it is the last member of a class whose members the work refers to.
class LatestTask : public QObject {
    Q_OBJECT

public:
    explicit LatestTask(QObject* pParent = nullptr);

    /// Begins as soon as the work before has ended.
    void start(BackgroundTask::Work work);
    /// Nobody wants to know any more.
    void stop();
    /// The exception that ended the work, for people; empty when none did.
    [[nodiscard]] const QString& error() const { return mTask.error(); }

Q_SIGNALS:
    /// The work that was wanted last has ended.
    void signalFinished();

private:
    void slotFinished();
    void run();

    BackgroundTask::Work mWanted; ///< what is to be done next; empty for nothing
    bool mIsOutdated = false;     ///< what is being done is of no use any more
    BackgroundTask mTask;
};

} // namespace ZARN
