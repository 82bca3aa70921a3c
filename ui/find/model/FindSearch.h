#pragma once

#include "analysis/Condition.h"
#include "app/BackgroundTask.h"
#include "card/LoadedCard.h"

namespace ZARN {

/// Looks for a condition in what is loaded while the window goes on: in the chosen flight, or in everything. A search that is begun ends the
/// one before it.
class FindSearch : public QObject {
    Q_OBJECT

public:
    explicit FindSearch(QObject* pParent = nullptr);

    void start(const LoadedCard& card, const std::string& condition, double atLeast);
    /// Nobody wants to know any more.
    void stop();
    [[nodiscard]] const ConditionTimes& times() const { return mTimes; }
    /// Why there is no answer; empty when there is one.
    [[nodiscard]] const QString& error() const { return mTask.error(); }

Q_SIGNALS:
    void signalFinished();

private:
    void slotFinished();
    void run();

    std::function<void(Progress&)> mWanted; ///< what is to be done next; empty for nothing
    bool mIsOutdated = false;               ///< what is being done is of no use any more
    ConditionTimes mTimes;
    BackgroundTask mTask;
};

} // namespace ZARN
