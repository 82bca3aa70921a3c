#pragma once

#include "ui/graph/model/GraphLabels.h"

#include <optional>

namespace ZARN {

/// Draws the course of the cycle around the traces: its phases and the running engine as a band above the plot, flights as a shade on its
/// ground, incidents as marks along the time axis.
class CourseBand {
public:
    CourseBand(const GraphModel& model, const GraphLayout& layout) : mModel(model), mLayout(layout), mLabels(model, layout) {}

    /// Above the ground, below everything else.
    void drawFlights(Canvas& canvas) const;
    void draw(Canvas& canvas) const;
    /// The incident whose mark is under a point, by its place in the course.
    [[nodiscard]] std::optional<std::size_t> incidentAt(const QPointF& point) const;
    /// In the user's language; empty where nothing runs.
    [[nodiscard]] static QString phaseName(EFlightPhase phase);

private:
    /// Where the layout leaves room for it; empty where it does not.
    [[nodiscard]] QRectF band() const;
    void drawPhases(Canvas& canvas) const;
    void drawEngine(Canvas& canvas) const;
    void drawIncidents(Canvas& canvas) const;
    [[nodiscard]] QRectF mark(const TimeSpan& span) const;
    /// The seen part of a span, between the heights of a rectangle; empty when none is.
    [[nodiscard]] QRectF area(double from, double until, const QRectF& rect) const;

    const GraphModel& mModel;
    const GraphLayout& mLayout;
    const GraphLabels mLabels;
};

} // namespace ZARN
