#pragma once

#include "analysis/CycleReview.h"

#include <QColor>

class QPainter;
class QRectF;

namespace ZARN {

/// The sign of a verdict, told by shape as well as by colour: a disc with a tick, a triangle, an octagon, a disc with a question mark.
class VerdictSign {
public:
    [[nodiscard]] static QColor colour(EVerdict verdict);
    /// The verdict that an incident of that state makes.
    [[nodiscard]] static EVerdict ofState(int state) { return state >= 2 ? EVerdict::eLimit : EVerdict::eWarning; }
    /// Leaves the painter's state as it was.
    static void paint(QPainter& painter, EVerdict verdict, const QRectF& place);
};

} // namespace ZARN
