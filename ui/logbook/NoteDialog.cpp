#include "ui/logbook/NoteDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QVBoxLayout>

namespace ZARN {

NoteDialog::NoteDialog(const QString& label, const QString& text, QWidget* pParent) : QDialog(pParent), mpText(new QPlainTextEdit(text))
{
    setWindowTitle(tr("Note"));
    auto* pLabel = new QLabel(label);
    pLabel->setTextFormat(Qt::PlainText);
    pLabel->setBuddy(mpText);
    mpText->setTabChangesFocus(true);
    mpText->moveCursor(QTextCursor::End);
    auto* pButtons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pLabel);
    pLayout->addWidget(mpText);
    pLayout->addWidget(pButtons);
    connect(pButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(pButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(QKeySequence(Qt::CTRL | key), this), &QShortcut::activated, this, &QDialog::accept);
}

std::optional<QString> NoteDialog::ask(QWidget* pParent, const QString& label, const QString& text)
{
    NoteDialog dialog(label, text, pParent);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.mpText->toPlainText()) : std::nullopt;
}

} // namespace ZARN
