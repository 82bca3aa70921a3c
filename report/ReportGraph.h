#pragma once

#include "card/LoadedCard.h"
#include "ui/graph/model/GraphModel.h"

namespace ZARN {

class EventList;
class PaperCanvas;

/// The main parameters of the loaded cycle or flight over time, each in a strip of its own: those that the program knows, and those
/// that exceeded a limit.
class ReportGraph {
public:
    /// @param loaded must outlive it
    ReportGraph(const LoadedCard& loaded, const EventList& limits);

    [[nodiscard]] bool isEmpty() const { return mModel.traces().count() == 0; }
    /// How many parameters that exceeded a limit found no room.
    [[nodiscard]] int leftOut() const { return mLeftOut; }
    void draw(PaperCanvas& canvas, const QRectF& place) const;

private:
    void addParameter(const ProfileParameter& parameter);
    /// The name of a strip in the place left of it, where it hides no trace.
    void drawName(PaperCanvas& canvas, const GraphParameter& parameter, const QRectF& place) const;

    const LoadedCard& mLoaded;
    CoordinateFilter mFilter;
    GraphModel mModel;
    int mUsed = 0;
    int mLeftOut = 0;
};

} // namespace ZARN
