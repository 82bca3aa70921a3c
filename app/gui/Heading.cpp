#include "app/gui/Heading.h"

#include <QEvent>

namespace ZARN {

Heading::Heading(const QString& text, QWidget* pParent, EText size) : QLabel(text, pParent), mSize(size)
{
    setObjectName("heading");
}

void Heading::follow()
{
    if (!parentWidget())
        return;
    parentWidget()->ensurePolished();
    const QString style = QString("font-size: %1px;").arg(textSize(*parentWidget(), mSize));
    if (style != styleSheet())
        setStyleSheet(style);
}

void Heading::changeEvent(QEvent* pEvent)
{
    QLabel::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange || pEvent->type() == QEvent::StyleChange)
        QMetaObject::invokeMethod(this, &Heading::follow, Qt::QueuedConnection); // when the parent has its new font, too
}

void Heading::showEvent(QShowEvent* pEvent)
{
    follow();
    QLabel::showEvent(pEvent);
}

} // namespace ZARN
