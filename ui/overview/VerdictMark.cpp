#include "ui/overview/VerdictMark.h"

#include <QEvent>
#include <QFontInfo>
#include <QPainter>

namespace ZARN {

VerdictMark::VerdictMark(EVerdict verdict, double size, QWidget* pParent) : QWidget(pParent), mVerdict(verdict), mSize(size)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

QSize VerdictMark::sizeHint() const
{
    const int side = qRound(mSize * QFontInfo(font()).pixelSize());
    return {side, side};
}

void VerdictMark::paintEvent(QPaintEvent* /*pEvent*/)
{
    QPainter painter(this);
    VerdictSign::paint(painter, mVerdict, rect());
}

void VerdictMark::changeEvent(QEvent* pEvent)
{
    QWidget::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange)
        updateGeometry();
}

} // namespace ZARN
