#include "export/ui/DialogExportCsvOptions.h"

#include "app/gui/FormLayout.h"
#include "export/CsvForm.h"

#include <QComboBox>
#include <QDate>
#include <QLabel>

#include <algorithm>

namespace ZARN {

namespace {

QComboBox* makeList(const char* name, const std::vector<std::pair<QString, int>>& items)
{
    auto* pList = new QComboBox;
    pList->setObjectName(name);
    for (const auto& [text, value] : items)
        pList->addItem(text, value);
    return pList;
}

void choose(QComboBox* pList, int value)
{
    pList->setCurrentIndex(std::max(pList->findData(value), 0));
}

} // namespace

DialogExportCsvOptions::DialogExportCsvOptions(QWidget* pParent)
    : QWizardPage(pParent), mpForm(new QComboBox), mpLimiter(makeList("limiter", {{tr("Semikolon ;"), ';'}, {tr("Comma ,"), ','}, {tr("Tabstop"), '\t'}})),
      mpResolution(makeList("resolution", {{tr("100 ms"), 100}, {tr("10 ms"), 10}})),
      mpParameter(makeList("parameters", {{tr("All Parameter"), 1}, {tr("Selected Parameter only"), 0}})),
      mpSize(new QLabel), mpNote(new QLabel)
{
    setTitle(tr("Select CSV Option"));
    mpNote->setObjectName("warning");
    mpNote->setWordWrap(true);
    mpForm->setObjectName("form");
    mpForm->addItem(tr("Fixed, for programs: decimal point"), QString());
    addForm(CsvForm::kThisComputer);
    mpSize->setObjectName("size");
    auto* pForm = new FormLayout(this);
    pForm->addRow(tr("Form"), mpForm);
    pForm->addRow(tr("Limiter"), mpLimiter);
    pForm->addRow(tr("Resolution"), mpResolution);
    pForm->addRow(tr("Parameter Selection"), mpParameter);
    pForm->addRow(tr("Size of the file"), mpSize);
    pForm->addRow(mpNote);
    connect(mpForm, &QComboBox::currentIndexChanged, this, &DialogExportCsvOptions::slotForm);
    connect(mpLimiter, &QComboBox::currentIndexChanged, this, &DialogExportCsvOptions::slotLimiter);
    connect(mpResolution, &QComboBox::currentIndexChanged, this, &DialogExportCsvOptions::slotResolution);
    connect(mpParameter, &QComboBox::currentIndexChanged, this, &DialogExportCsvOptions::slotParameter);
}

void DialogExportCsvOptions::addForm(const QString& locale)
{
    const CsvForm form = CsvForm::of(locale, ';').value_or(CsvForm{});
    const QString example = QStringLiteral("1") + form.decimal + '5' + form.separator + QDate(2024, 12, 31).toString(form.dateFormat);
    mpForm->addItem(locale == CsvForm::kThisComputer ? tr("For spreadsheets on this computer: %1").arg(example)
                                                     : tr("For spreadsheets, %1: %2").arg(locale, example),
                    locale);
}

QString DialogExportCsvOptions::locale() const
{
    return mpForm->currentData().toString();
}

void DialogExportCsvOptions::slotForm()
{
    mpLimiter->setEnabled(locale().isEmpty()); // a locale has its own
    Q_EMIT signalChanged();
}

void DialogExportCsvOptions::setOptions(int separator, int resolution, bool allParameters, const QString& locale)
{
    if (mpForm->findData(locale) < 0 && CsvForm::of(locale, ';'))
        addForm(locale);
    mpForm->setCurrentIndex(std::max(mpForm->findData(locale), 0));
    choose(mpLimiter, separator);
    choose(mpResolution, resolution);
    choose(mpParameter, allParameters ? 1 : 0);
}

void DialogExportCsvOptions::setOutlook(const QString& note, const QString& size)
{
    mpNote->setText(note);
    mpSize->setText(size);
}

void DialogExportCsvOptions::slotLimiter(int index)
{
    mSeparator = static_cast<char>(mpLimiter->itemData(index).toInt());
}

void DialogExportCsvOptions::slotResolution(int index)
{
    mResolution = mpResolution->itemData(index).toUInt();
    Q_EMIT signalChanged();
}

void DialogExportCsvOptions::slotParameter(int index)
{
    mAllParameters = mpParameter->itemData(index).toInt() == 1;
    Q_EMIT signalChanged();
}

} // namespace ZARN
