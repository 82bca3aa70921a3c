#pragma once

#include "analysis/CycleReview.h"
#include "analysis/IncidentText.h"

#include <QCoreApplication>
#include <QStringList>

namespace ZARN {

/// Tells a review to people, in the language in force, but for its incidents.
class ReviewText {
    Q_DECLARE_TR_FUNCTIONS(ZARN::ReviewText)

public:
    /// @param timeText of a time since power-up
    explicit ReviewText(const CycleReview& review, IncidentText::TimeText timeText = IncidentText::time)
        : mReview(review), mTime(std::move(timeText))
    {
    }

    /// The verdict in a few words.
    [[nodiscard]] QString verdict() const;
    /// What could not be told and why, a sentence each; empty when all could.
    [[nodiscard]] QStringList gaps() const;
    /// "68 of 74 watched parameters recorded; missing: ..."
    [[nodiscard]] QString watched() const;
    /// What was outside, but not while the engine ran, in one line with at most so many names; empty when nothing was.
    [[nodiscard]] QString standing(qsizetype most = kNames) const;
    /// When the position is not that of the aircraft; empty when it always is.
    [[nodiscard]] QString heldPositions() const;
    /// How long the engine ran; "unknown".
    [[nodiscard]] QString engineRunning() const;

private:
    static constexpr qsizetype kNames = 4;
    /// "from 0:39 to 1:10, from ..."
    [[nodiscard]] QString texts(std::span<const TimeSpan> spans) const;
    [[nodiscard]] static QString some(const QStringList& names, qsizetype most = kNames);

    const CycleReview& mReview;
    IncidentText::TimeText mTime;
};

} // namespace ZARN
