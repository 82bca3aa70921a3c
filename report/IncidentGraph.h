#pragma once

#include "analysis/IncidentText.h"
#include "report/PaperGraph.h"

namespace ZARN {

/// A small picture of the incidents that one sentence tells: bars for lamps and faults, below them the values that were outside with their
/// bands, their peaks marked. Shows all of them where they lie close together, else the one that was worst.
class IncidentGraph {
    Q_DECLARE_TR_FUNCTIONS(ZARN::IncidentGraph)

public:
    /// @param subject and the incidents must outlive it
    IncidentGraph(const ReportSubject& subject, const std::vector<Incident>& incidents, const IncidentSentence& sentence);

    /// In points; 0 where there is nothing to draw.
    [[nodiscard]] double height() const;
    /// What it shows, in words.
    [[nodiscard]] QString text() const;
    void draw(PaperCanvas& canvas, const QRectF& place) const;

private:
    /// The episodes of one quantity; the first is the worst.
    struct Quantity {
        QString name;
        std::vector<const Episode*> episodes;
    };
    struct Strip {
        const Episode* pEpisode;
        ProfileParameter parameter;
    };
    static std::vector<const Incident*> chosen(const std::vector<Incident>& incidents, const IncidentSentence& sentence);
    [[nodiscard]] static std::vector<Quantity> quantities(const std::vector<const Incident*>& incidents, bool isValue);
    void findSpan(const std::vector<const Incident*>& incidents);
    void findStrips(const std::vector<const Incident*>& incidents);
    [[nodiscard]] static QString note(const Episode& episode);
    void drawBars(PaperCanvas& canvas, const PaperGraph& graph, const QRectF& place) const;
    void drawPeaks(PaperCanvas& canvas, const PaperGraph& graph, const std::vector<std::optional<int>>& strips) const;
    void drawNotes(PaperCanvas& canvas, QPointF corner) const;
    [[nodiscard]] double barsHeight() const;
    [[nodiscard]] double unused() const;

    [[nodiscard]] QString time(double seconds) const { return mSubject.reference().shortText(seconds); }

    const ReportSubject& mSubject;
    TimeSpan mSpan;
    std::vector<Strip> mStrips;
    std::vector<Quantity> mBars;
    QStringList mLeftOut;      ///< names of what has no room
    std::optional<double> mOf; ///< the start of the one that is shown of several
};

} // namespace ZARN
