#include "app/gui/IconLabel.h"

#include "app/gui/ImageHandler.h"

#include <QEvent>

namespace ZARN {

IconLabel::IconLabel(const QString& name, int size, QWidget* pParent) : QLabel(pParent), mName(name), mSize(size)
{
    draw();
}

void IconLabel::draw()
{
    setPixmap(ImageHandler::icon(mName).pixmap(QSize(mSize, mSize), devicePixelRatioF()));
}

void IconLabel::changeEvent(QEvent* pEvent)
{
    QLabel::changeEvent(pEvent);
    if (pEvent->type() == QEvent::StyleChange)
        draw();
}

} // namespace ZARN
