#pragma once

#include <QObject>

class QWidget;

namespace ZARN {

/// Keeps the mouse wheel from changing a selector or number field that it merely passes over; an open list, a window of its own, is
/// scrolled as ever. Belongs to the widget that it guards.
class WheelGuard : public QObject {
    Q_OBJECT

public:
    static void install(QWidget& widget);

    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private:
    explicit WheelGuard(QWidget& widget);
};

} // namespace ZARN
