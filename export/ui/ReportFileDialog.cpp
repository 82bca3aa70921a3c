#include "export/ui/ReportFileDialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

namespace ZARN {

ReportFileDialog::ReportFileDialog(const QString& title, const QString& folder, std::vector<Part> parts, int part, QWidget* pParent)
    : QFileDialog(pParent, title, folder), mParts(std::move(parts)), mpPart(new QComboBox)
{
    setOption(QFileDialog::DontUseNativeDialog); // which would have no room for what the report is about
    setAcceptMode(QFileDialog::AcceptSave);
    setNameFilters({tr("PDF Files (*.pdf)"), tr("HTML Files (*.html *.htm)")});
    mpPart->setObjectName("part");
    for (const Part& entry : mParts)
        mpPart->addItem(entry.title);
    mpPart->setCurrentIndex(part);
    auto* pLabel = new QLabel(tr("Report about:"));
    pLabel->setBuddy(mpPart);
    if (auto* pLayout = qobject_cast<QGridLayout*>(layout()); pLayout && mParts.size() > 1) {
        const int row = pLayout->rowCount();
        pLayout->addWidget(pLabel, row, 0);
        pLayout->addWidget(mpPart, row, 1);
    } else {
        pLabel->setParent(this);
        mpPart->setParent(this);
        pLabel->hide();
        mpPart->hide();
    }
    connect(mpPart, &QComboBox::activated, this, &ReportFileDialog::propose);
    connect(this, &QFileDialog::filterSelected, this, &ReportFileDialog::propose);
    propose();
}

int ReportFileDialog::part() const
{
    return mpPart->currentIndex();
}

QString ReportFileDialog::suffix() const
{
    return selectedNameFilter() == nameFilters().constFirst() ? QStringLiteral("pdf") : QStringLiteral("html");
}

void ReportFileDialog::propose()
{
    setDefaultSuffix(suffix()); // part of the name when the dialog asks whether to replace a file
    const auto* pName = findChild<QLineEdit*>("fileNameEdit");
    const QString typed = pName ? pName->text() : QString();
    static const QRegularExpression suffixes("\\.(pdf|html?)$", QRegularExpression::CaseInsensitiveOption);
    // The user's own name stays as it is, with its folder and its dots.
    const QString base = typed.isEmpty() || typed == mProposed ? mParts[static_cast<std::size_t>(part())].name : QString(typed).remove(suffixes);
    const QString name = base + "." + suffix();
    if (typed.isEmpty() || typed == mProposed)
        mProposed = name;
    selectFile(name);
}

} // namespace ZARN
