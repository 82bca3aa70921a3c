#pragma once

#include "analysis/FaultTimeline.h"

#include <QImage>
#include <QWidget>

#include <functional>

namespace ZARN {

class CardContainer;
class RecordData;

/// When bits of each kind were set in an error matrix over the loaded record: a band each for Info, Warning and Fault, and a line at
/// the view time. The bands are drawn once for each record and size.
class WidgetErrorTime : public QWidget {
    Q_OBJECT

public:
    /// What is told of a time when the pointer rests on it.
    using Tell = std::function<QString(double time)>;

    WidgetErrorTime(const CardContainer& container, Tell tell, QWidget* pParent = nullptr);

    /// The matrix whose bits are shown: identifier, name and bit definitions.
    void setData(const FaultMatrix& matrix);
    void updateRecord(const RecordData* pRecord);
    void setTime(double time);

    /// Where a time lies, in pixels from the left; 0 without a record, or when it has no duration. Any number outside the record.
    [[nodiscard]] int xOf(double time) const;
    /// Empty without samples of the matrix.
    [[nodiscard]] const std::vector<FaultChange>& changes(EErrorType kind) const { return mTimeline.changes(kind); }

Q_SIGNALS:
    /// The user clicked at a time of the record, in seconds.
    void signalTime(double time);
    /// The user wants to see the faults of a time in the graph.
    void signalShow(double time);

protected:
    bool event(QEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void mouseMoveEvent(QMouseEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;

private:
    /// None without a record that lasts.
    [[nodiscard]] std::optional<double> timeAt(double x) const;
    /// The time under the pointer while the left button is down.
    [[nodiscard]] std::optional<double> timeAt(const QMouseEvent& event) const;
    void chooseTime(const QMouseEvent& event);
    void drawBands();
    void drawBand(QPainter& painter, EErrorType kind, const QRect& band) const;

    const CardContainer& mContainer;
    const Tell mTell;
    FaultMatrix mMatrix;
    FaultTimeline mTimeline;
    QImage mBands; ///< null when it must be drawn anew
    bool mWithRecord = false;
    double mStart = 0.0; ///< of the record, in seconds
    double mEnd = 0.0;
    double mTime = 0.0;
};

} // namespace ZARN
