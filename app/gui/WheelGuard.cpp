#include "app/gui/WheelGuard.h"

#include <QEvent>
#include <QWidget>

namespace ZARN {

WheelGuard::WheelGuard(QWidget& widget) : QObject(&widget)
{
    widget.setFocusPolicy(Qt::StrongFocus); // nor does the wheel give the focus
    widget.installEventFilter(this);
}

void WheelGuard::install(QWidget& widget)
{
    new WheelGuard(widget);
}

bool WheelGuard::eventFilter(QObject* /*pObject*/, QEvent* pEvent)
{
    if (pEvent->type() != QEvent::Wheel)
        return false;
    pEvent->ignore(); // what lies around the widget may scroll by it
    return true;
}

} // namespace ZARN
