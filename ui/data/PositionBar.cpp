#include "ui/data/PositionBar.h"

#include "app/TimeText.h"
#include "app/gui/TextSize.h"
#include "ui/canvas/Palette.h"
#include "ui/canvas/PhaseStrip.h"
#include "ui/overview/model/VerdictSign.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyleOptionSlider>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace ZARN {

namespace {

constexpr int kBand = 14, kMark = 8, kHeight = 32; // pixels beside the usual text
constexpr double kLeastMark = 3;
constexpr int kLeastWidth = 120;
constexpr double kGrip = 5; // half the width of the handle
constexpr double kNear = 4; // how far from a mark the pointer may be

} // namespace

PositionBar::PositionBar(QWidget* pParent) : JumpSlider(pParent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PositionBar::setMarks(PositionMarks marks)
{
    mMarks = std::move(marks);
    update();
}

void PositionBar::setSpan(double start, double end, const TimeReference& times)
{
    mStart = start;
    mEnd = end;
    mTimes = times;
}

QSize PositionBar::sizeHint() const
{
    return {2 * kLeastWidth, grownWithText(*this, kHeight)};
}

QSize PositionBar::minimumSizeHint() const
{
    return {kLeastWidth, grownWithText(*this, kHeight)};
}

std::pair<double, double> PositionBar::ends() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    return {groove.left() + handle.width() / 2.0, groove.left() + groove.width() - handle.width() / 2.0};
}

QRectF PositionBar::band() const
{
    const auto [left, right] = ends();
    const int band = grownWithText(*this, kBand), marks = grownWithText(*this, kMark);
    return {left, (height() - band - marks - 1) / 2.0, right - left, static_cast<double>(band)};
}

QRectF PositionBar::area(double from, double until, double top, double height) const
{
    const QRectF whole = band();
    const double width = std::max((until - from) * whole.width(), kLeastMark);
    return {std::min(whole.left() + from * whole.width(), whole.right() - width), top, width, height};
}

void PositionBar::paintEvent(QPaintEvent* /*pEvent*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    std::vector<PhaseStrip::Step> steps;
    for (const PositionMarks::Band& phase : mMarks.bands())
        steps.push_back({band().left() + phase.from * band().width(), band().left() + phase.until * band().width(), phase.phase});
    PhaseStrip::paint(painter, band(), steps);
    paintMarks(painter);
    paintHandle(painter);
}

/// As high as they are grave.
void PositionBar::paintMarks(QPainter& painter) const
{
    for (const PositionMarks::Mark& mark : mMarks.marks()) {
        const double high = grownWithText(*this, kMark);
        const QRectF place = area(mark.from, mark.until, band().bottom() + 1, mark.state > 1 ? high : high / 2);
        painter.fillRect(place, VerdictSign::colour(VerdictSign::ofState(mark.state)));
    }
}

void PositionBar::paintHandle(QPainter& painter) const
{
    const auto [left, right] = ends();
    const double share = static_cast<double>(sliderPosition() - minimum()) / std::max(maximum() - minimum(), 1);
    const double x = left + share * (right - left);
    const Palette::Text& colours = Palette::screen().text;
    painter.setPen(Qt::NoPen);
    painter.setBrush(hasFocus() || isSliderDown() ? colours.accent : colours.ink);
    painter.drawRect(QRectF(x - 1, 2, 2, height() - 4));
    painter.setPen(QPen(Palette::screen().tables.field, 1));
    painter.drawRoundedRect(QRectF(x - kGrip, band().top() - 3, 2 * kGrip, band().height() + 6), 3, 3);
}

QString PositionBar::textAt(double x) const
{
    const auto [left, right] = ends();
    if (!(mEnd > mStart) || !(right > left))
        return toolTip();
    const double share = std::clamp((x - left) / (right - left), 0.0, 1.0);
    const QString time = mTimes.text(wholeMilliseconds(mStart + share * (mEnd - mStart)));
    const QString text = mMarks.text(share, kNear / (right - left));
    return text.isEmpty() ? time : time + '\n' + text;
}

bool PositionBar::event(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::FontChange)
        updateGeometry();
    if (pEvent->type() != QEvent::ToolTip)
        return JumpSlider::event(pEvent);
    const auto* pHelp = static_cast<QHelpEvent*>(pEvent);
    QToolTip::showText(pHelp->globalPos(), "<qt>" + textAt(pHelp->pos().x()).toHtmlEscaped().replace('\n', "<br>") + "</qt>", this);
    return true;
}

} // namespace ZARN
