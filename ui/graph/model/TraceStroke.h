#pragma once

#include <QPointF>

#include <vector>

namespace ZARN {

/// The numbers are those of the settings "GraphStyle%d".
enum class ELineStyle { eAutomatic, eSolid, eDashed, eDotted };

/// How a trace's line is drawn.
struct TraceStroke {
    static constexpr int kWidest = 5;
    int width = 1;                             ///< pixels
    ELineStyle style = ELineStyle::eAutomatic; ///< solid, but where the colours begin anew
    bool operator==(const TraceStroke&) const = default;
};

/// Cuts a line into dashes along the time, by points that are no numbers. What is steep stays whole: no peak falls between two dashes.
/// @param dash pixels of a dash, and of what lies between two  @param phase pixels that the first one has begun before x = 0
/// @param left, right what is seen
void makeDashes(std::vector<QPointF>& points, double dash, double phase, double left, double right);

} // namespace ZARN
