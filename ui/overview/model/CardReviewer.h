#pragma once

#include "app/BackgroundTask.h"
#include "project/Session.h"
#include "ui/overview/model/CycleOverview.h"

#include <QObject>

#include <atomic>
#include <functional>

namespace ZARN {

class CardContainer;
class DecodingContext;

/// Reviews all cycles of a card, the newest first, while the window goes on, and tells each as soon as it is known. Reads the card by
/// itself: what is loaded in the window stays as it is.
class CardReviewer : public QObject {
    Q_OBJECT

public:
    /// Adds what is known of a cycle beside its card; called in the thread of the review, with the cycle loaded and its key values found.
    using Supplement = std::function<void(CycleOverview& overview, const CardContainer& card)>;

    explicit CardReviewer(const Session& session, QObject* pParent = nullptr);

    /// Begins with the card that is open now, under the profile and in the units that are in force; what was under way is dropped.
    void start();
    void stop();
    /// From the next start on.
    void setSupplement(Supplement supplement) { mSupplement = std::move(supplement); }
    [[nodiscard]] bool isRunning() const { return mTask.isRunning() || mIsWanted; }

Q_SIGNALS:
    void signalReviewed(std::shared_ptr<const ZARN::CycleOverview> pCycle);
    void signalProgress(int percent);
    /// In place of signalFinished(): what was told is all. @param problem for people; empty when the card cannot be read any more
    void signalStopped(const QString& problem);
    void signalFinished();

private:
    using Tell = std::function<void(std::shared_ptr<const CycleOverview>)>;

    void begin();
    void finish();
    /// @return false when the card cannot be read
    static bool review(Progress& progress, const DecodingContext& context, const QString& path, const std::vector<uint32_t>& numbers,
                       const Supplement& supplement, const Tell& tell);

    const Session mSession;
    Supplement mSupplement;
    int mGeneration = 0; ///< of the run: what an earlier one still tells is old
    bool mIsWanted = false;
    std::atomic<bool> mIsGone = false;
    BackgroundTask mTask; // the last: it waits for work that refers to the others
};

} // namespace ZARN
