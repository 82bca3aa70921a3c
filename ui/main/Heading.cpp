#include "ui/main/Heading.h"

#include <QEvent>
#include <QFontInfo>

namespace ZARN {

namespace {

constexpr double kOfText = 1.7;

} // namespace

Heading::Heading(const QString& text, QWidget* pParent) : QLabel(text, pParent)
{
    setObjectName("heading");
}

void Heading::follow()
{
    if (!parentWidget())
        return;
    parentWidget()->ensurePolished();
    const QString style = QString("font-size: %1px;").arg(qRound(kOfText * QFontInfo(parentWidget()->font()).pixelSize()));
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
