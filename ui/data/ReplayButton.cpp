#include "ui/data/ReplayButton.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace ZARN {

ReplayButton::ReplayButton(const char* name)
{
    setObjectName(name);
    setStyleSheet("QPushButton { padding-left: 8px; padding-right: 8px; }"); // two of them stand in a narrow row
}

void ReplayButton::setLook(const QString& text, const QIcon& icon)
{
    setText(text);
    setToolTip(text);
    setIcon(icon);
}

int ReplayButton::widthFor(const QString& text) const
{
    ensurePolished(); // the style sheet gives it font and padding
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = text;
    constexpr int kGap = 4; // that styles put between icon and text
    const QFontMetrics metrics = fontMetrics();
    const int content = option.iconSize.width() + (text.isEmpty() ? 0 : 2 * kGap + metrics.size(Qt::TextShowMnemonic, text).width());
    const QSize size(content, std::max(option.iconSize.height(), metrics.height()));
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, size, this).width();
}

void ReplayButton::paintEvent(QPaintEvent* /*pEvent*/)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    if (width() < widthFor(text()))
        option.text.clear();
    QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
}

} // namespace ZARN
