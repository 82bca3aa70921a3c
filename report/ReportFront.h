#pragma once

#include "analysis/IncidentText.h"
#include "report/ReportDocument.h"
#include "report/ReportSubject.h"
#include "ui/overview/model/CycleOverview.h"

#include <QCoreApplication>

namespace ZARN {

/// What a report begins with: whether the engine was all right, what the cycle or flight took, what is wrong with the card, and what happened.
class ReportFront {
    Q_DECLARE_TR_FUNCTIONS(ZARN::FlightReport)

public:
    /// @param subject must outlive the document
    explicit ReportFront(const ReportSubject& subject);

    void addTo(ReportDocument& document) const;
    /// Of the whole cycle.
    [[nodiscard]] const std::vector<FlightPhases::Step>& phases() const { return mPhases; }
    [[nodiscard]] const EngineRunning& engine() const { return mEngine; }
    [[nodiscard]] const std::vector<Incident>& incidents() const { return mpOverview->review.incidents; }

private:
    void addVerdict(ReportDocument& document) const;
    void addIdentity(ReportDocument& document) const;
    void addProblems(ReportDocument& document) const;
    void addIncidents(ReportDocument& document) const;
    void addNotes(ReportDocument& document) const;
    [[nodiscard]] ReportPicture graph(const IncidentSentence& sentence) const;
    [[nodiscard]] QString moreText(const std::vector<IncidentSentence>& sentences, std::size_t told) const;
    [[nodiscard]] bool isFlight() const { return mLoaded.cycle && mLoaded.flightNumber > 0; }

    const ReportSubject& mSubject;
    const LoadedCard& mLoaded;
    const TimeReference mTimes;
    std::vector<FlightPhases::Step> mPhases;
    EngineRunning mEngine;
    std::shared_ptr<CycleOverview> mpOverview; // shared with the drawings
    std::size_t mOutside = 0;                  ///< incidents of the cycle outside of the flight
};

} // namespace ZARN
