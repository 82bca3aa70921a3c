#pragma once

#include "report/PaperGraph.h"

#include <set>

namespace ZARN {

class EventList;
struct Incident;

/// The main parameters of the loaded cycle or flight over time: those that the program knows, those of its incidents, and others that exceeded
/// a limit.
class ReportGraph {
public:
    /// @param subject must outlive it
    ReportGraph(const ReportSubject& subject, const std::vector<Incident>& incidents, const EventList& limits);

    [[nodiscard]] bool isEmpty() const { return mGraph.count() == 0; }
    /// How many parameters that exceeded a limit found no room.
    [[nodiscard]] int leftOut() const { return mLeftOut; }
    [[nodiscard]] const QStringList& names() const { return mNames; }
    /// Of the parameters, each followed by what it is compared with.
    [[nodiscard]] std::vector<MarkerValues> values(const TimeSpan& span) const { return mGraph.values(span); }
    [[nodiscard]] bool hasNormal() const { return mGraph.hasNormal(); }
    void draw(PaperCanvas& canvas, const QRectF& place) { mGraph.draw(canvas, place); }

private:
    /// Once each.
    void add(const std::string& name);

    const LoadedCard& mLoaded;
    PaperGraph mGraph;
    std::set<std::string> mTaken;
    QStringList mNames;
    int mLeftOut = 0;
};

} // namespace ZARN
