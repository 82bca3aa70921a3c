#include "ui/data/DataTabBar.h"

#include "ui/data/TextSize.h"

#include <QMouseEvent>
#include <QStyleOptionTab>
#include <QStylePainter>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kIcon = 32;
constexpr int kMargin = 6; // left and right of the title
constexpr int kTightMargin = 2;
constexpr int kAbove = 5;
constexpr int kBelow = 6; // the style's line under the selected tab
constexpr int kBadgeHeight = 15;
constexpr int kMostShown = 99;
const QColor kBadge(178, 34, 34);

} // namespace

DataTabBar::DataTabBar(QWidget* pParent) : QTabBar(pParent)
{
    setExpanding(false);
    setIconSize(QSize(kIcon, kIcon));
    setDrawBase(false);
}

void DataTabBar::setCount(int index, int count)
{
    mCounts.resize(static_cast<std::size_t>(this->count()));
    mCounts[static_cast<std::size_t>(index)] = count;
    update();
}

int DataTabBar::countOf(int index) const
{
    const auto place = static_cast<std::size_t>(index);
    return place < mCounts.size() ? mCounts[place] : 0;
}

QFont DataTabBar::titleFont(bool selected) const
{
    QFont title = font();
    title.setPixelSize(textSize(*this));
    title.setBold(selected);
    return title;
}

QSize DataTabBar::tabSizeHint(int index) const
{
    const QFontMetrics metrics(titleFont(true)); // so that no tab moves when another is selected
    return {std::max(metrics.horizontalAdvance(tabText(index)), kIcon) + 2 * kMargin, kAbove + kIcon + metrics.height() + kBelow};
}

QSize DataTabBar::minimumTabSizeHint(int index) const
{
    const QSize whole = tabSizeHint(index);
    return {std::min(whole.width() - 2 * (kMargin - kTightMargin), widestTab()), whole.height()};
}

/// The width that no tab may exceed, or they would not all fit: the long titles give way, not the short ones.
int DataTabBar::widestTab() const
{
    std::vector<int> widths;
    for (int index = 0; index < count(); ++index)
        widths.push_back(tabSizeHint(index).width() - 2 * (kMargin - kTightMargin));
    constexpr int kLeast = kIcon + 2 * kTightMargin;
    int widest = widths.empty() ? kLeast : std::max(*std::max_element(widths.begin(), widths.end()), kLeast);
    const auto together = [&] {
        int sum = 0;
        for (const int width : widths)
            sum += std::min(width, widest);
        return sum;
    };
    while (widest > kLeast && together() > width())
        --widest;
    return widest;
}

void DataTabBar::mousePressEvent(QMouseEvent* pEvent)
{
    QTabBar::mousePressEvent(pEvent);
    if (pEvent->button() == Qt::LeftButton && tabAt(pEvent->position().toPoint()) >= 0)
        Q_EMIT signalClicked();
}

void DataTabBar::paintEvent(QPaintEvent* /*pEvent*/)
{
    QStylePainter painter(this);
    for (int index = 0; index < count(); ++index)
        paintTab(painter, index);
}

void DataTabBar::paintTab(QPainter& painter, int index)
{
    QStyleOptionTab option;
    initStyleOption(&option, index);
    style()->drawControl(QStyle::CE_TabBarTabShape, &option, &painter, this);
    const bool selected = index == currentIndex();
    QRect icon(0, option.rect.top() + kAbove, kIcon, kIcon);
    icon.moveLeft(option.rect.center().x() - kIcon / 2);
    tabIcon(index).paint(&painter, icon);
    const QRect title(option.rect.left(), icon.bottom() + 1, option.rect.width(), option.rect.bottom() - icon.bottom() - kBelow);
    const int room = title.width() - 2;
    const bool fitsBold = QFontMetrics(titleFont(true)).horizontalAdvance(option.text) <= room;
    painter.setFont(titleFont(selected && fitsBold)); // the line below tells the selected one too; a cut title tells less
    painter.setPen(palette().color(QPalette::WindowText));
    const QString text = QFontMetrics(painter.font()).elidedText(option.text, Qt::ElideRight, room);
    painter.drawText(title, Qt::AlignCenter | Qt::TextSingleLine, text);
    if (hasFocus() && selected) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DotLine));
        painter.drawRect(option.rect.adjusted(2, 2, -3, -4));
    }
    if (countOf(index) > 0)
        paintCount(painter, icon, countOf(index));
}

void DataTabBar::paintCount(QPainter& painter, const QRect& icon, int count) const
{
    const QString text = count > kMostShown ? QString("%1+").arg(kMostShown) : QString::number(count);
    QFont small = font();
    small.setPixelSize(std::max(textSize(*this) * 5 / 6, kSmallestText));
    small.setBold(true);
    const QFontMetrics metrics(small);
    const int height = std::max(metrics.height(), kBadgeHeight);
    QRect badge(0, icon.top() - 2, std::max(metrics.horizontalAdvance(text) + 8, height), height);
    badge.moveLeft(icon.right() - 8);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kBadge);
    painter.drawRoundedRect(badge, height / 2, height / 2);
    painter.setFont(small);
    painter.setPen(Qt::white);
    painter.drawText(badge, Qt::AlignCenter, text);
    painter.restore();
}

} // namespace ZARN
