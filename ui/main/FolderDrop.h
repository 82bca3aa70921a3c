#pragma once

#include <QObject>

class QMimeData;

namespace ZARN {

/// Lets card folders be dropped on a window. Owned by the window.
class FolderDrop : public QObject {
    Q_OBJECT

public:
    explicit FolderDrop(QWidget* pWindow);

    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

Q_SIGNALS:
    /// A folder hovers over the window, or no longer.
    void signalDragged(bool isOver);
    void signalDropped(const QString& folder);

private:
    /// What a drop names: a folder itself, or that of a file; empty when it names none.
    static QString folderOf(const QMimeData& data);
};

} // namespace ZARN
