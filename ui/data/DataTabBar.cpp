#include "ui/data/DataTabBar.h"

#include "app/gui/TextSize.h"
#include "ui/canvas/Palette.h"

#include <QMouseEvent>
#include <QStyleOptionTab>
#include <QStylePainter>

#include <algorithm>
#include <tuple>
#include <utility>

namespace ZARN {

namespace {

constexpr int kIcon = 32;
constexpr int kMargin = 6; // left and right of the title
constexpr int kTightMargin = 2;
constexpr int kLeastTitle = 10; // pixels of a letter, or two thirds of other texts
constexpr int kAbove = 5;
constexpr int kBelow = 6; // the style's line under the selected tab
constexpr int kBadgeHeight = 15;
constexpr int kMostShown = 99;
constexpr int kCutStep = 3; // pixels by which the widest titles are cut at a time

} // namespace

DataTabBar::DataTabBar(QWidget* pParent) : QTabBar(pParent)
{
    setExpanding(false);
    setDrawBase(false);
    setElideMode(Qt::ElideNone);
}

void DataTabBar::setCount(int index, int count)
{
    mCounts.resize(static_cast<std::size_t>(this->count()));
    if (std::exchange(mCounts[static_cast<std::size_t>(index)], count) != count)
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
    title.setPixelSize(std::max(textSize(*this) - mSmaller, 1));
    title.setBold(selected);
    return title;
}

QString DataTabBar::title(int index, EFit fit) const
{
    QString text = tabText(index);
    if (fit != eTwoLines)
        return text;
    if (const auto blank = text.lastIndexOf(u' '); blank > 0)
        text[blank] = u'\n';
    else if (const auto slash = text.lastIndexOf(u'/'); slash > 0)
        text.insert(slash + 1, u'\n');
    return text;
}

int DataTabBar::tabWidth(int index, EFit fit) const
{
    const QFontMetrics metrics(titleFont(true)); // so that no tab moves when another is selected
    const int wanted = std::max(metrics.size(0, title(index, fit)).width(), icon()) + 2 * (fit == eWide ? kMargin : kTightMargin);
    return std::min(wanted, mWidest);
}

int DataTabBar::icon() const
{
    const int room = count() > 0 ? width() / count() - 2 * kTightMargin : 0; // beside one another they must have it
    return std::clamp(room, kIcon, grownWithText(*this, kIcon));
}

QSize DataTabBar::tabSizeHint(int index) const
{
    const int lines = mFit == eTwoLines ? 2 : 1;
    return {tabWidth(index, mFit), kAbove + icon() + lines * QFontMetrics(titleFont(true)).lineSpacing() + kBelow};
}

QSize DataTabBar::minimumTabSizeHint(int index) const
{
    return tabSizeHint(index);
}

void DataTabBar::arrange()
{
    const auto together = [this](EFit fit) {
        int sum = 0;
        for (int index = 0; index < count(); ++index)
            sum += tabWidth(index, fit);
        return sum;
    };
    const auto before = std::tuple(mFit, mSmaller, mWidest);
    mSmaller = 0;
    mWidest = kNoLimit;
    EFit fit = eWide;
    while (fit != eTwoLines && together(fit) > width())
        fit = static_cast<EFit>(fit + 1);
    const int least = std::max(kLeastTitle, textSize(*this) * 2 / 3);
    while (together(fit) > width() && textSize(*this) - mSmaller > least)
        ++mSmaller;
    for (int widest = width(); together(fit) > width() && widest >= kIcon; widest -= kCutStep)
        mWidest = widest;
    mFit = fit;
    if (before != std::tuple(mFit, mSmaller, mWidest) && count() > 0)
        setTabText(0, tabText(0)); // lays them out anew
}

void DataTabBar::resizeEvent(QResizeEvent* pEvent)
{
    arrange();
    QTabBar::resizeEvent(pEvent);
}

void DataTabBar::changeEvent(QEvent* pEvent)
{
    QTabBar::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange || pEvent->type() == QEvent::StyleChange)
        arrange();
}

void DataTabBar::tabInserted(int /*index*/)
{
    arrange();
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
    QRect icon(0, option.rect.top() + kAbove, this->icon(), this->icon());
    icon.moveLeft(option.rect.center().x() - icon.width() / 2);
    tabIcon(index).paint(&painter, icon);
    const QRect place(option.rect.left(), icon.bottom() + 1, option.rect.width(), option.rect.bottom() - icon.bottom() - kBelow);
    painter.setFont(titleFont(selected));
    painter.setPen(palette().color(QPalette::WindowText));
    QStringList lines = title(index, mFit).split('\n');
    for (QString& line : lines)
        line = painter.fontMetrics().elidedText(line, Qt::ElideRight, place.width());
    painter.drawText(place, Qt::AlignHCenter | Qt::AlignTop, lines.join('\n'));
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
    small.setPixelSize(textSize(*this, EText::eFine));
    small.setBold(true);
    const QFontMetrics metrics(small);
    const int height = std::max(metrics.height(), kBadgeHeight);
    QRect badge(0, icon.top() - 2, std::max(metrics.horizontalAdvance(text) + 8, height), height);
    badge.moveLeft(icon.right() - 8);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Palette::screen().tables.badge);
    painter.drawRoundedRect(badge, height / 2, height / 2);
    painter.setFont(small);
    painter.setPen(Palette::screen().tables.onBadge);
    painter.drawText(badge, Qt::AlignCenter, text);
    painter.restore();
}

} // namespace ZARN
