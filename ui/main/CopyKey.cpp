#include "ui/main/CopyKey.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace ZARN {

namespace {

bool isTextUnselected(const QObject* pReceiver)
{
    if (pReceiver->property("copiesUnselected").toBool())
        return false;
    if (const auto* pLine = qobject_cast<const QLineEdit*>(pReceiver))
        return !pLine->hasSelectedText();
    if (const auto* pText = qobject_cast<const QTextEdit*>(pReceiver))
        return !pText->textCursor().hasSelection();
    if (const auto* pText = qobject_cast<const QPlainTextEdit*>(pReceiver))
        return !pText->textCursor().hasSelection();
    if (const auto* pLabel = qobject_cast<const QLabel*>(pReceiver))
        return !pLabel->hasSelectedText();
    // These hold a field for text and hand it their keys.
    if (!qobject_cast<const QAbstractSpinBox*>(pReceiver) && !qobject_cast<const QComboBox*>(pReceiver))
        return false;
    const auto* pLine = pReceiver->findChild<const QLineEdit*>();
    return pLine && !pLine->hasSelectedText();
}

} // namespace

bool CopyKey::isLeftToWindow(const QObject* pReceiver, QEvent* pEvent)
{
    if (pEvent->type() != QEvent::ShortcutOverride || !static_cast<QKeyEvent*>(pEvent)->matches(QKeySequence::Copy) ||
        !isTextUnselected(pReceiver))
        return false;
    pEvent->ignore();
    return true;
}

} // namespace ZARN
