#pragma once

#include <QColor>
#include <QPointF>
#include <QSizeF>

#include <vector>

namespace ZARN {

class Canvas;

/// The marks on a map: discs of which none covers another. Those of the same kind that would are one, with their number in it; others step
/// aside, with a line to the place that they mean.
class ReportMarks {
public:
    /// @param size of the map, which no mark leaves.
    explicit ReportMarks(const QSizeF& size) : mSize(size) {}

    void add(const QPointF& at, const QColor& colour);
    /// The same for one of many: joins a mark of that colour that it would cover.
    void addToGroup(const QPointF& at, const QColor& colour);
    void draw(Canvas& canvas);

private:
    struct Mark {
        QPointF at;    ///< what it means
        QPointF place; ///< where it stands
        QColor colour;
        int count = 1;
        [[nodiscard]] double radius() const;
    };
    /// Gives the marks their places, in the order in which they were added.
    void settle();
    [[nodiscard]] bool isFree(const QPointF& place, std::size_t number) const;
    [[nodiscard]] QPointF freePlace(std::size_t number) const;

    QSizeF mSize;
    std::vector<Mark> mMarks;
};

} // namespace ZARN
