#include "ui/data/WidgetErrorItem.h"

#include "app/gui/TextSize.h"
#include "ui/canvas/ColourContrast.h"
#include "ui/data/FaultColours.h"

#include <QPainter>

namespace {

constexpr int kMinimumWidth = 15;
constexpr int kMinimumHeight = 150;
constexpr int kMargin = 4;

} // namespace

WidgetErrorItem::WidgetErrorItem(QWidget* pParent) : QWidget(pParent)
{
    setMinimumSize(kMinimumWidth, kMinimumHeight);
    setAutoFillBackground(true);
}

void WidgetErrorItem::setText(const QString& text)
{
    mText = text;
    update();
}

void WidgetErrorItem::setType(int type)
{
    mType = type;
    update();
}

void WidgetErrorItem::setErrorState(bool on)
{
    if (mErrorState == on)
        return;
    mErrorState = on;
    update();
}

QColor WidgetErrorItem::fill() const
{
    return mErrorState ? ZARN::faultColour(mType) : ZARN::quietFaultColour(mType);
}

QFont WidgetErrorItem::textFont() const
{
    QFont font = this->font();
    font.setPixelSize(ZARN::textSize(*this, ZARN::EText::eFine));
    return font;
}

int WidgetErrorItem::lengthOfText() const
{
    return mType == ZARN::eErrorNone ? 0 : QFontMetrics(textFont()).horizontalAdvance(mText) + 3 * kMargin;
}

int WidgetErrorItem::thicknessOfText() const
{
    return mType == ZARN::eErrorNone ? 0 : QFontMetrics(textFont()).height() + 2;
}

void WidgetErrorItem::paintEvent(QPaintEvent* /*pEvent*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), fill());
    if (lengthOfText() == 0)
        return;
    painter.setFont(textFont());
    painter.setPen(ZARN::textColourOn(fill()));
    painter.translate(0, height());
    painter.rotate(-90);
    const QRect room(kMargin, 0, height() - 2 * kMargin, width());
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(mText, Qt::ElideRight, room.width()));
}
