#pragma once

#include "project/TimeReference.h"
#include "ui/data/JumpSlider.h"
#include "ui/data/model/PositionMarks.h"

namespace ZARN {

/// The position in the record as a slider over what happened in it: phases as a band, incidents as marks below, warnings lower than limits. The
/// tool tip tells what is under the pointer.
class PositionBar : public JumpSlider {
    Q_OBJECT

public:
    explicit PositionBar(QWidget* pParent = nullptr);

    void setMarks(PositionMarks marks);
    /// @param start, end of the record in seconds since power-up, for what is told of a place
    void setSpan(double start, double end, const TimeReference& times);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    bool event(QEvent* pEvent) override;

private:
    /// The middles of the handle at both ends.
    [[nodiscard]] std::pair<double, double> ends() const;
    [[nodiscard]] QRectF band() const;
    [[nodiscard]] QRectF area(double from, double until, double top, double height) const;
    void paintMarks(QPainter& painter) const;
    void paintHandle(QPainter& painter) const;
    [[nodiscard]] QString textAt(double x) const;

    PositionMarks mMarks;
    TimeReference mTimes;
    double mStart = 0.0, mEnd = 0.0;
};

} // namespace ZARN
