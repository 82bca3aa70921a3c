#pragma once

#include "analysis/CycleReview.h"
#include "app/BackgroundTask.h"
#include "app/GrowthTimer.h"
#include "card/CardContainer.h"

#include <memory>

namespace ZARN {

/// Works out, on a thread of its own, what a growing recording holds so far: flights, path and incidents. Not oftener than once a second,
/// nor for more than a fifth of the time.
class LiveReviewer : public QObject {
    Q_OBJECT

public:
    explicit LiveReviewer(QObject* pParent = nullptr);

    /// Whether the time has come for the next one.
    [[nodiscard]] bool isDue() const { return mPace.isDue() && !mTask.isRunning(); }
    /// @param container that shows the recording  @param pRecord what there is of it by now
    void start(const CardContainer& container, const DecodingContext& context, std::shared_ptr<RecordData> pRecord);
    /// What was begun is not told.
    void stop() { mTask.cancel(); }

    /// With flights and path, after signalFound.
    [[nodiscard]] CardContainer& draft() { return *mpDraft; }
    [[nodiscard]] const CycleReview& review() const { return mReview; }

Q_SIGNALS:
    void signalFound();

private:
    void slotFinished();

    DecodingContext mContext;
    std::unique_ptr<CardContainer> mpDraft;
    CycleReview mReview;
    GrowthTimer mPace;
    BackgroundTask mTask;   // the last: it refers to the others
};

} // namespace ZARN
