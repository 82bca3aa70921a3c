#pragma once

#include "analysis/FlightPhases.h"

#include <QRectF>

#include <vector>

class QPainter;

namespace ZARN {

/// The course of a power cycle as a bar: each phase has a height of its own below a line, so that it is known without its colour.
class PhaseStrip {
public:
    struct Step {
        double left, right; ///< pixels
        EFlightPhase phase;
    };

    static void paint(QPainter& painter, const QRectF& bar, const std::vector<Step>& steps);
};

} // namespace ZARN
