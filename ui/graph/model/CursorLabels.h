#pragma once

#include "ui/graph/model/GraphLabels.h"

#include <optional>
#include <vector>

namespace ZARN {

/// Where the cursor stands in a frame and what is written beside it: its time, in split mode the values of all strips, and while it is
/// moved the height that it is moved to. Labels are on the side that has room; what else is drawn keeps clear of them.
class CursorLabels {
public:
    struct Label {
        QPointF position; ///< of the text's corner or side that `align` names
        QString text;
        Qt::Alignment align;
        QRectF box;
    };

    CursorLabels(const GraphModel& model, const GraphLayout& layout);

    /// None when the cursor is off or outside of the plot.
    [[nodiscard]] const std::optional<double>& x() const { return mX; }
    /// The height of the value that the cursor is moved to.
    [[nodiscard]] const std::optional<double>& y() const { return mY; }
    [[nodiscard]] const std::vector<Label>& labels() const { return mLabels; }
    [[nodiscard]] bool covers(const QRectF& rect) const;
    void draw(Canvas& canvas, const GraphLabels& labels) const;

private:
    void addTime();
    void addValues();
    void addMoved();
    [[nodiscard]] double widthOf(const QString& text) const;
    [[nodiscard]] bool isRightOf(const QString& text) const;
    void add(double top, const QString& text, bool isRight);

    const GraphModel& mModel;
    const GraphLayout& mLayout;
    std::optional<double> mX;
    std::optional<double> mY;
    std::vector<Label> mLabels;
};

} // namespace ZARN
