#include "app/gui/PasteGuard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace ZARN {

namespace {

/// @return whether it is a field of that kind
template <typename Field> bool pasteInto(QObject* pObject)
{
    auto* pField = qobject_cast<Field*>(pObject);
    if (!pField)
        return false;
    const QString text = pField->isReadOnly() ? QString() : QGuiApplication::clipboard()->text();
    if (!text.isEmpty())
        pField->insertPlainText(text);
    return true;
}

} // namespace

bool PasteGuard::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pEvent->type() != QEvent::KeyPress || !static_cast<QKeyEvent*>(pEvent)->matches(QKeySequence::Paste))
        return false;
    return pasteInto<QPlainTextEdit>(pObject) || pasteInto<QTextEdit>(pObject);
}

} // namespace ZARN
