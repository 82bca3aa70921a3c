#include "ui/canvas/PhaseStrip.h"

#include "ui/canvas/Palette.h"

#include <QPainter>

namespace ZARN {

namespace {

/// As a share of the bar's: what follows one another in a flight differs.
double heightOf(EFlightPhase phase)
{
    switch (phase) {
    case EFlightPhase::eGround: return 0.3;
    case EFlightPhase::eTakeOff: return 0.55;
    case EFlightPhase::eClimb: return 0.8;
    case EFlightPhase::eLevel: return 1.0;
    case EFlightPhase::eDescent: return 0.6;
    default: return 0.0;
    }
}

} // namespace

void PhaseStrip::paint(QPainter& painter, const QRectF& bar, const std::vector<Step>& steps)
{
    const Palette::Course& colours = Palette::screen().course;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(bar, colours.recorded);
    painter.setPen(colours.line);
    for (const Step& step : steps) {
        const QRectF area(QPointF(step.left, bar.bottom() - heightOf(step.phase) * bar.height()), QPointF(step.right, bar.bottom()));
        if (step.phase == EFlightPhase::eOff || area.width() <= 0)
            continue;
        painter.fillRect(area, colours.of(step.phase));
        painter.drawLine(area.topLeft(), area.topRight());
        painter.drawLine(area.topLeft(), area.bottomLeft());
        painter.drawLine(area.topRight(), area.bottomRight());
    }
    painter.setPen(colours.outline);
    painter.drawRect(bar);
    painter.restore();
}

} // namespace ZARN
