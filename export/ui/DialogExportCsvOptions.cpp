#include "export/ui/DialogExportCsvOptions.h"

#include <QComboBox>
#include <QFormLayout>
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
    : QWizardPage(pParent), mpLimiter(makeList("limiter", {{tr("Semikolon ;"), ';'}, {tr("Comma ,"), ','}, {tr("Tabstop"), '\t'}})),
      mpResolution(makeList("resolution", {{tr("100 ms"), 100}, {tr("10 ms"), 10}})),
      mpParameter(makeList("parameters", {{tr("All Parameter"), 1}, {tr("Selected Parameter only"), 0}})), mpNote(new QLabel)
{
    setTitle(tr("Select CSV Option"));
    mpNote->setObjectName("warning");
    mpNote->setWordWrap(true);
    auto* pForm = new QFormLayout(this);
    pForm->addRow(tr("Limiter"), mpLimiter);
    pForm->addRow(tr("Resolution"), mpResolution);
    pForm->addRow(tr("Parameter Selection"), mpParameter);
    pForm->addRow(mpNote);
    connect(mpLimiter, &QComboBox::currentIndexChanged, this, &DialogExportCsvOptions::slotLimiter);
    connect(mpResolution, &QComboBox::currentIndexChanged, this, &DialogExportCsvOptions::slotResolution);
    connect(mpParameter, &QComboBox::currentIndexChanged, this, &DialogExportCsvOptions::slotParameter);
}

void DialogExportCsvOptions::setOptions(int separator, int resolution, bool allParameters)
{
    choose(mpLimiter, separator);
    choose(mpResolution, resolution);
    choose(mpParameter, allParameters ? 1 : 0);
}

void DialogExportCsvOptions::setNote(const QString& text)
{
    mpNote->setText(text);
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
