#pragma once

#include <QObject>

#include <functional>

class QAbstractItemView;
class QModelIndex;

namespace ZARN {

/// Lets a table show one of its cells in the graph: by a double click, by Ctrl+Return and by its context menu. Owned by the table.
class GraphJump : public QObject {
    Q_OBJECT

public:
    using Show = std::function<void(const QModelIndex& index)>;

    GraphJump(QAbstractItemView* pView, const Show& show);
};

} // namespace ZARN
