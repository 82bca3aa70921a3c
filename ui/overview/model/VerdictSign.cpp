#include "ui/overview/model/VerdictSign.h"

#include "ui/canvas/CanvasFont.h"
#include "ui/canvas/Palette.h"

#include <QPainter>

namespace ZARN {

namespace {

constexpr double kUnit = 24; // what the shapes are drawn in

QPolygonF shapeOf(EVerdict verdict)
{
    if (verdict == EVerdict::eWarning)
        return QPolygonF({{12, 2}, {23, 22}, {1, 22}});
    return QPolygonF({{8, 2}, {16, 2}, {22, 8}, {22, 16}, {16, 22}, {8, 22}, {2, 16}, {2, 8}});
}

void paintInside(QPainter& painter, EVerdict verdict)
{
    const Palette::Signs& colours = Palette::light().signs; // the same everywhere
    const QColor line = verdict == EVerdict::eWarning ? colours.insideWarning : colours.inside;
    painter.setPen(QPen(line, 2.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    if (verdict == EVerdict::eOk) {
        painter.drawPolyline(QPolygonF({{7, 12.5}, {10.5, 16}, {17, 8.5}}));
    } else if (verdict == EVerdict::eUnknown) {
        painter.setFont(textFont(16, true));
        painter.drawText(QRectF(0, 0, kUnit, kUnit), Qt::AlignCenter, "?");
    } else {
        const double down = verdict == EVerdict::eWarning ? 2 : 0;
        painter.drawLine(QPointF(12, 7 + down), QPointF(12, 12.5 + down));
        painter.drawPoint(QPointF(12, 16.8 + down));
    }
}

} // namespace

QColor VerdictSign::colour(EVerdict verdict)
{
    const Palette::Signs& colours = Palette::light().signs;
    switch (verdict) {
    case EVerdict::eOk: return colours.good;
    case EVerdict::eWarning: return colours.warning;
    case EVerdict::eLimit: return colours.limit;
    default: return colours.unknown;
    }
}

void VerdictSign::paint(QPainter& painter, EVerdict verdict, const QRectF& place)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.topLeft());
    painter.scale(place.width() / kUnit, place.height() / kUnit);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(verdict));
    if (verdict == EVerdict::eOk || verdict == EVerdict::eUnknown)
        painter.drawEllipse(QRectF(1, 1, kUnit - 2, kUnit - 2));
    else
        painter.drawPolygon(shapeOf(verdict));
    paintInside(painter, verdict);
    painter.restore();
}

} // namespace ZARN
