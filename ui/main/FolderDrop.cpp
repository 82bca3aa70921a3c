#include "ui/main/FolderDrop.h"

#include "card/record/RecordFormats.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace ZARN {

FolderDrop::FolderDrop(QWidget* pWindow) : QObject(pWindow)
{
    pWindow->setAcceptDrops(true);
    pWindow->installEventFilter(this);
}

QString FolderDrop::folderOf(const QMimeData& data)
{
    for (const QUrl& url : data.urls()) {
        const QFileInfo info(url.toLocalFile());
        if (info.isDir() || info.isFile())
            return RecordFormats::cardOf(info.filePath());
    }
    return {};
}

bool FolderDrop::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::DragLeave)
        Q_EMIT signalDragged(false);
    if (pEvent->type() != QEvent::DragEnter && pEvent->type() != QEvent::Drop)
        return QObject::eventFilter(pObject, pEvent);
    auto& event = static_cast<QDropEvent&>(*pEvent);
    const QString folder = folderOf(*event.mimeData());
    if (pEvent->type() == QEvent::Drop) {
        Q_EMIT signalDragged(false);
        event.acceptProposedAction();
        // The program that the folder comes from waits for this event to end.
        QMetaObject::invokeMethod(
            this, [this, folder] { Q_EMIT signalDropped(folder); }, Qt::QueuedConnection);
    } else if (!folder.isEmpty()) {
        Q_EMIT signalDragged(true);
        event.acceptProposedAction();
    }
    return true;
}

} // namespace ZARN
