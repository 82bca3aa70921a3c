#include "export/ui/ExportPathPage.h"

#include "app/gui/FormLayout.h"
#include "export/ui/ExportTarget.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace ZARN {

ExportPathPage::ExportPathPage(const CardContainer& card, const QString& chooser, QWidget* pParent)
    : QWizardPage(pParent), mCard(card), mChooser(chooser), mpForm(new FormLayout(this)), mpPart(new QComboBox), mpSize(new QLabel),
      mpDirectory(new QLineEdit), mpName(new QLineEdit), mpProblem(new QLabel)
{
    setTitle(tr("Select the output directory and file"));
    mpPart->setObjectName("part");
    mpDirectory->setObjectName("directory");
    mpDirectory->setAccessibleName(tr("Output directory"));
    mpName->setObjectName("fileName");
    mpProblem->setObjectName("warning");
    mpProblem->setTextFormat(Qt::PlainText); // a path may hold what looks like markup
    mpProblem->setWordWrap(true);
    auto* pChoose = new QPushButton(tr("Choose ..."));
    pChoose->setObjectName("choose");
    auto* pFolder = new QHBoxLayout;
    pFolder->addWidget(mpDirectory, 1);
    pFolder->addWidget(pChoose);
    mpForm->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    mpForm->addRow(tr("Range"), mpPart);
    mpForm->addRow(tr("Size of the file"), mpSize);
    mpForm->addRow(tr("Export Path"), pFolder);
    mpForm->addRow(tr("Export Filename"), mpName);
    mpForm->addRow(mpProblem);
    mpForm->setRowVisible(mpPart, false);
    mpForm->setRowVisible(mpSize, false);
    connect(mpPart, &QComboBox::activated, this, &ExportPathPage::slotPart);
    connect(pChoose, &QPushButton::clicked, this, &ExportPathPage::slotChoose);
    connect(mpDirectory, &QLineEdit::textChanged, this, &ExportPathPage::slotChanged);
    connect(mpName, &QLineEdit::textChanged, this, &ExportPathPage::slotChanged);
}

void ExportPathPage::setTarget(const QString& directory, const QString& name)
{
    mReplaced.clear();
    mpDirectory->setText(QDir::toNativeSeparators(QDir(directory).absolutePath()));
    mpName->setText(name);
}

void ExportPathPage::setParts(const std::vector<ExportPart>& parts)
{
    mParts = parts;
    mpPart->clear();
    for (const ExportPart& part : parts)
        mpPart->addItem(part.title);
    mpForm->setRowVisible(mpPart, parts.size() > 1);
}

std::optional<TimeSpan> ExportPathPage::span() const
{
    return mParts.empty() ? std::nullopt : mParts[static_cast<std::size_t>(std::max(mpPart->currentIndex(), 0))].span;
}

void ExportPathPage::slotPart(int index)
{
    if (!mpName->isModified()) // a name that the user typed stays
        mpName->setText(mParts[static_cast<std::size_t>(index)].fileName);
    Q_EMIT signalPart();
}

void ExportPathPage::setSize(const QString& text)
{
    mpSize->setText(text);
    mpForm->setRowVisible(mpSize, mParts.size() > 1); // there is something to choose by it
}

QString ExportPathPage::directory() const
{
    return QDir(QDir::fromNativeSeparators(mpDirectory->text().trimmed())).absolutePath();
}

QString ExportPathPage::fileName() const
{
    return mpName->text().trimmed();
}

bool ExportPathPage::isComplete() const
{
    return !mpDirectory->text().trimmed().isEmpty() && !fileName().isEmpty();
}

bool ExportPathPage::validatePage()
{
    const ExportTarget target(mCard, directory(), fileName());
    mpProblem->setText(target.problem());
    return mpProblem->text().isEmpty() && (!target.exists() || mayReplace(target.path()));
}

bool ExportPathPage::mayReplace(const QString& path)
{
    if (mReplaced == path)
        return true;
    QMessageBox box(QMessageBox::Warning, tr("ZARN Warning"), tr("%1 exists already.\nReplace it ?").arg(QDir::toNativeSeparators(path)),
                    QMessageBox::Yes | QMessageBox::No, this);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    if (box.exec() != QMessageBox::Yes)
        return false;
    mReplaced = path;
    return true;
}

void ExportPathPage::slotChoose()
{
    const QString folder = QFileDialog::getExistingDirectory(this, mChooser, directory(),
                                                             QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    if (!folder.isEmpty())
        mpDirectory->setText(QDir::toNativeSeparators(folder));
}

void ExportPathPage::slotChanged()
{
    mpProblem->clear();
    Q_EMIT completeChanged();
}

} // namespace ZARN
