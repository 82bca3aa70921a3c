#include "ui/logbook/WidgetTrend.h"

#include "app/gui/TextSize.h"
#include "ui/canvas/RasterCanvas.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

namespace ZARN {

WidgetTrend::WidgetTrend(QWidget* pParent) : QWidget(pParent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(240, 140);
    setAccessibleName(tr("Trend"));
}

void WidgetTrend::setTrend(std::shared_ptr<const JudgedTrend> pTrend)
{
    mpTrend = std::move(pTrend);
    mChosen = -1;
    update();
}

void WidgetTrend::choose(int point)
{
    const int count = mpTrend ? static_cast<int>(mpTrend->trend.points.size()) : 0;
    if (count == 0)
        return;
    mChosen = std::clamp(point, 0, count - 1);
    setAccessibleDescription(TrendScene::text(*mpTrend, mChosen));
    update();
    Q_EMIT signalChosen(mChosen);
}

TrendScene WidgetTrend::scene() const
{
    return {*mpTrend, QSizeF(size()), static_cast<double>(textSize(*this, EText::eDrawn))};
}

int WidgetTrend::pointAt(const QPointF& place) const
{
    return mpTrend ? scene().pointAt(place.x()) : -1;
}

void WidgetTrend::paintEvent(QPaintEvent* /*pEvent*/)
{
    QPainter painter(this);
    RasterCanvas canvas(painter);
    if (mpTrend)
        scene().draw(canvas, mChosen);
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void WidgetTrend::mousePressEvent(QMouseEvent* pEvent)
{
    if (pEvent->button() == Qt::LeftButton)
        choose(pointAt(pEvent->position()));
}

void WidgetTrend::mouseDoubleClickEvent(QMouseEvent* pEvent)
{
    if (const int point = pointAt(pEvent->position()); point >= 0 && pEvent->button() == Qt::LeftButton)
        Q_EMIT signalOpen(point);
}

void WidgetTrend::keyPressEvent(QKeyEvent* pEvent)
{
    const int count = mpTrend ? static_cast<int>(mpTrend->trend.points.size()) : 0;
    switch (pEvent->key()) {
    case Qt::Key_Left: return choose(mChosen < 0 ? count - 1 : mChosen - 1);
    case Qt::Key_Right: return choose(mChosen + 1);
    case Qt::Key_Home: return choose(0);
    case Qt::Key_End: return choose(count - 1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (mChosen >= 0)
            Q_EMIT signalOpen(mChosen);
        return;
    default: QWidget::keyPressEvent(pEvent);
    }
}

bool WidgetTrend::event(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::ToolTip && mpTrend) {
        const auto* pHelp = static_cast<QHelpEvent*>(pEvent);
        const QString text = TrendScene::text(*mpTrend, pointAt(QPointF(pHelp->pos())));
        QToolTip::showText(pHelp->globalPos(), "<span>" + text.toHtmlEscaped() + "</span>", this);
        return true;
    }
    return QWidget::event(pEvent);
}

} // namespace ZARN
