#include "ui/logbook/DateField.h"

#include "app/gui/ImageHandler.h"
#include "app/gui/StyleProperty.h"
#include "ui/logbook/model/LogbookTexts.h"

#include <QAction>
#include <QCalendarWidget>
#include <QMenu>
#include <QWidgetAction>

namespace ZARN {

DateField::DateField(const QString& name, QWidget* pParent) : QLineEdit(pParent)
{
    setAccessibleName(name);
    setPlaceholderText(tr("any"));
    setToolTip(tr("A date as 31.12.2026 or 2026-12-31; empty: any"));
    setFixedWidth(fontMetrics().horizontalAdvance("00.00.0000") * 2);
    QAction* pOpen = addAction(ImageHandler::icon("chevron-down"), QLineEdit::TrailingPosition);
    pOpen->setToolTip(tr("Calendar"));
    connect(pOpen, &QAction::triggered, this, &DateField::openCalendar);
    connect(this, &QLineEdit::textChanged, this, &DateField::check);
}

QDate DateField::date() const
{
    for (const char* form : {"d.M.yyyy", "yyyy-M-d"}) {
        if (const QDate date = QDate::fromString(text().trimmed(), form); date.isValid())
            return date;
    }
    return {};
}

void DateField::check()
{
    const bool isWrong = !text().trimmed().isEmpty() && !date().isValid();
    setStyleProperty(*this, "wrong", isWrong);
    Q_EMIT signalDate();
}

void DateField::openCalendar()
{
    auto* pMenu = new QMenu(this);
    pMenu->setAttribute(Qt::WA_DeleteOnClose);
    auto* pCalendar = new QCalendarWidget;
    pCalendar->setMinimumSize(pCalendar->sizeHint() + QSize(16, 32)); // or the style cuts the last week off
    pCalendar->setSelectedDate(date().isValid() ? date() : QDate::currentDate());
    auto* pAction = new QWidgetAction(pMenu);
    pAction->setDefaultWidget(pCalendar);
    pMenu->addAction(pAction);
    connect(pCalendar, &QCalendarWidget::clicked, this, [this, pMenu](const QDate& chosen) {
        setText(LogbookTexts::date(chosen));
        pMenu->close();
    });
    pMenu->popup(mapToGlobal(QPoint(0, height())));
}

} // namespace ZARN
