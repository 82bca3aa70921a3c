#include "ui/overview/WidgetIncidentRow.h"

#include "ui/overview/VerdictMark.h"
#include "ui/overview/model/OverviewTexts.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace ZARN {

namespace {

constexpr double kMarkSize = 1.5; // times the text
constexpr int kRadius = 5;

QLabel* makeLabel(const QString& text, const char* name)
{
    auto* pLabel = new QLabel(OverviewTexts::breakable(text));
    pLabel->setObjectName(name);
    pLabel->setTextFormat(Qt::PlainText); // names of a profile
    pLabel->setWordWrap(true);
    pLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    return pLabel;
}

} // namespace

WidgetIncidentRow::WidgetIncidentRow(int state, const QString& time, const QString& head, const QString& detail, QWidget* pParent)
    : QAbstractButton(pParent), mpTime(makeLabel(time, "time"))
{
    setText(head);
    setAccessibleName(time + ", " + head);
    setAccessibleDescription(detail);
    setToolTip(tr("Show in the graph"));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred); // a button's own would never let the texts wrap
    setCursor(Qt::PointingHandCursor);
    mpTime->setWordWrap(false);
    auto* pTexts = new QVBoxLayout;
    pTexts->setSpacing(1);
    pTexts->addWidget(makeLabel(head, "strong"));
    if (!detail.isEmpty())
        pTexts->addWidget(makeLabel(detail, "quiet"));
    auto* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins(8, 6, 8, 6);
    pLayout->setSpacing(10);
    pLayout->addWidget(new VerdictMark(VerdictSign::ofState(state), kMarkSize), 0, Qt::AlignTop);
    pLayout->addWidget(mpTime, 0, Qt::AlignTop);
    pLayout->addLayout(pTexts, 1);
    giveRoom();
}

QSize WidgetIncidentRow::sizeHint() const
{
    return layout()->sizeHint();
}

int WidgetIncidentRow::heightForWidth(int width) const
{
    return layout()->totalHeightForWidth(width);
}

/// The texts of all rows begin at one place.
void WidgetIncidentRow::giveRoom()
{
    mpTime->setMinimumWidth(mpTime->fontMetrics().horizontalAdvance("00:00:00"));
}

void WidgetIncidentRow::paintEvent(QPaintEvent* /*pEvent*/)
{
    if (!hasFocus() && !underMouse())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), 1.5) : QPen(Qt::NoPen));
    QColor ground = palette().color(QPalette::Highlight);
    ground.setAlphaF(underMouse() ? 0.12F : 0.0F);
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRadius, kRadius);
}

bool WidgetIncidentRow::event(QEvent* pEvent)
{
    // The window opens a card by the same key.
    if (pEvent->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(pEvent)->matches(QKeySequence::Copy)) {
        pEvent->accept();
        return true;
    }
    return QAbstractButton::event(pEvent);
}

void WidgetIncidentRow::keyPressEvent(QKeyEvent* pEvent)
{
    if (pEvent->matches(QKeySequence::Copy))
        Q_EMIT signalCopy();
    else if (pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(pEvent);
}

void WidgetIncidentRow::enterEvent(QEnterEvent* /*pEvent*/)
{
    update();
}

void WidgetIncidentRow::leaveEvent(QEvent* /*pEvent*/)
{
    update();
}

void WidgetIncidentRow::changeEvent(QEvent* pEvent)
{
    QAbstractButton::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange)
        QMetaObject::invokeMethod(this, &WidgetIncidentRow::giveRoom, Qt::QueuedConnection); // when the label has its new font, too
}

} // namespace ZARN
