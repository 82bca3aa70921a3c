#pragma once

#include <QRectF>
#include <QSizeF>

#include <algorithm>
#include <optional>
#include <vector>

namespace ZARN {

/// The room that labels have in an area: none may lie upon another.
class LabelRoom {
public:
    explicit LabelRoom(const QRectF& area, double gap = 2.0) : mArea(area), mGap(gap) {}

    [[nodiscard]] const QRectF& area() const { return mArea; }
    /// Keeps a rectangle free of labels.
    void block(const QRectF& box) { mTaken.push_back(box); }
    /// The place of a label beside a point: to the right, to the left, above or below; none when all are taken.
    [[nodiscard]] std::optional<QRectF> take(const QPointF& point, double distance, const QSizeF& size)
    {
        const double left = point.x() - size.width() - distance, right = point.x() + distance, middle = point.x() - 0.5 * size.width();
        for (const QPointF& corner : {QPointF(right, point.y() - 0.5 * size.height()), QPointF(left, point.y() - 0.5 * size.height()),
                                      QPointF(middle, point.y() - distance - size.height()), QPointF(middle, point.y() + distance)}) {
            const QRectF box(corner, size);
            if (mArea.contains(box) && isFree(box)) {
                block(box);
                return box;
            }
        }
        return {};
    }

private:
    [[nodiscard]] bool isFree(const QRectF& box) const
    {
        const QRectF wide = box.adjusted(-mGap, -mGap, mGap, mGap);
        return std::ranges::none_of(mTaken, [&wide](const QRectF& taken) { return taken.intersects(wide); });
    }

    QRectF mArea;
    double mGap;
    std::vector<QRectF> mTaken;
};

} // namespace ZARN
