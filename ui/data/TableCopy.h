#pragma once

#include <QObject>

class QAbstractItemView;

namespace ZARN {

/// Lets a table copy its selected cells to the clipboard as tab-separated text: by the copy key while it has the focus (whatever
/// that key does in the rest of the window) and by its context menu. Owned by the table.
class TableCopy : public QObject {
    Q_OBJECT

public:
    explicit TableCopy(QAbstractItemView* pView);

    /// @param withHeader puts the column titles first
    void copy(bool withHeader) const;

    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private:
    QAbstractItemView* mpView;
};

} // namespace ZARN
