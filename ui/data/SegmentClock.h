#pragma once

#include <QFrame>

namespace ZARN {

/// A segment display of flat segments, which are as thick as the digits are wide and as large as the frame has room for. Knows digits, minus signs,
/// points, colons and blanks.
class SegmentClock : public QFrame {
    Q_OBJECT

public:
    explicit SegmentClock(const char* name, QWidget* pParent = nullptr);

    void display(const QString& text);
    [[nodiscard]] const QString& text() const { return mText; }

protected:
    void paintEvent(QPaintEvent* pEvent) override;

private:
    QString mText;
};

} // namespace ZARN
