#include "ui/logbook/DialogService.h"

#include "app/DateText.h"
#include "app/gui/FormLayout.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace ZARN {

namespace {

constexpr double kMostHours = 100000.0;

QDoubleSpinBox* hoursField(double hours)
{
    auto* pField = new QDoubleSpinBox;
    pField->setDecimals(1);
    pField->setRange(0.0, kMostHours);
    pField->setSuffix(" h");
    pField->setValue(hours);
    return pField;
}

} // namespace

QString DialogService::notKept(const QString& problem)
{
    return tr("It could not be kept: %1").arg(problem);
}

DialogService::DialogService(Service service, double hours, const QString& hint, QWidget* pParent)
    : QDialog(pParent), mService(std::move(service)), mpName(new QLineEdit(mService.name)), mpByHours(new QCheckBox(tr("Every"))),
      mpHours(hoursField(mService.everyHours.value_or(100.0))), mpByMonths(new QCheckBox(tr("Every"))), mpMonths(new QSpinBox),
      mpIsDone(new QCheckBox(tr("Was done at"))), mpDoneHours(hoursField(mService.doneHours.value_or(hours))), mpDoneDate(new QDateEdit),
      mpNote(new QLineEdit(mService.note))
{
    setWindowTitle(tr("Service"));
    mpByHours->setChecked(mService.everyHours.has_value() || mService.id == 0);
    mpByMonths->setChecked(mService.everyMonths.has_value());
    mpIsDone->setChecked(mService.doneHours.has_value() || mService.doneDate.isValid());
    mpMonths->setRange(1, 600);
    mpMonths->setValue(mService.everyMonths.value_or(12));
    mpMonths->setSuffix(tr(" months"));
    mpDoneDate->setCalendarPopup(true);
    mpDoneDate->setDisplayFormat(kDateFormat);
    mpDoneDate->setDate(mService.doneDate.isValid() ? mService.doneDate : QDate::currentDate());
    mpDoneHours->setAccessibleName(tr("Engine hours when it was done"));
    mpDoneDate->setAccessibleName(tr("Date when it was done"));
    mpHours->setAccessibleName(tr("Interval in engine hours"));
    mpMonths->setAccessibleName(tr("Interval in months"));
    auto* pForm = new FormLayout(this);
    if (!hint.isEmpty()) {
        auto* pHint = new QLabel(hint);
        pHint->setObjectName("warning");
        pHint->setTextFormat(Qt::PlainText);
        pHint->setWordWrap(true);
        pForm->addRow(pHint);
    }
    pForm->addRow(tr("Name"), mpName);
    pForm->addRow(mpByHours, mpHours);
    pForm->addRow(mpByMonths, mpMonths);
    pForm->addRow(mpIsDone, mpDoneHours);
    pForm->addRow(QString(), mpDoneDate);
    pForm->addRow(tr("Remark"), mpNote);
    auto* pButtons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    mpOk = pButtons->button(QDialogButtonBox::Ok);
    pForm->addRow(pButtons);
    connect(pButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(pButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(mpName, &QLineEdit::textChanged, this, &DialogService::update);
    for (QCheckBox* pBox : {mpByHours, mpByMonths, mpIsDone})
        connect(pBox, &QCheckBox::toggled, this, &DialogService::update);
    update();
}

void DialogService::update()
{
    mpHours->setEnabled(mpByHours->isChecked());
    mpMonths->setEnabled(mpByMonths->isChecked());
    mpDoneHours->setEnabled(mpIsDone->isChecked());
    mpDoneDate->setEnabled(mpIsDone->isChecked());
    mpOk->setEnabled(!mpName->text().trimmed().isEmpty() && (mpByHours->isChecked() || mpByMonths->isChecked()));
}

Service DialogService::service() const
{
    Service service = mService;
    service.name = mpName->text().trimmed();
    service.everyHours = mpByHours->isChecked() ? std::optional(mpHours->value()) : std::nullopt;
    service.everyMonths = mpByMonths->isChecked() ? std::optional(mpMonths->value()) : std::nullopt;
    service.doneHours = mpIsDone->isChecked() ? std::optional(mpDoneHours->value()) : std::nullopt;
    service.doneDate = mpIsDone->isChecked() ? mpDoneDate->date() : QDate();
    service.note = mpNote->text().trimmed();
    return service;
}

} // namespace ZARN
