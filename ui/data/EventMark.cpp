#include "ui/data/EventMark.h"

#include <QPainter>

namespace ZARN {

namespace {

constexpr int kSize = 14;
constexpr int kFinest = 4; // device pixels a pixel, for every screen

QIcon createMark(const QPolygonF& shape, const QColor& fill, const QColor& line)
{
    QPixmap pixmap(kSize * kFinest, kSize * kFinest);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.scale(kFinest, kFinest);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(line, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(fill);
    painter.drawPolygon(shape);
    painter.drawLine(QPointF(7, 5), QPointF(7, 8));
    painter.drawPoint(QPointF(7, 10.5));
    painter.end();
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected); // the same in a chosen row
    return icon;
}

} // namespace

QIcon eventMark(int state)
{
    static const QIcon warning = createMark(QPolygonF({{7, 1}, {13, 13}, {1, 13}}), Qt::white, Qt::black);
    static const QIcon limit =
        createMark(QPolygonF({{4, 1}, {10, 1}, {13, 4}, {13, 10}, {10, 13}, {4, 13}, {1, 10}, {1, 4}}), Qt::black, Qt::white);
    return state == 1 ? warning : state == 2 ? limit : QIcon();
}

} // namespace ZARN
