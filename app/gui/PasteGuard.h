#pragma once

#include <QObject>

namespace ZARN {

/// Pastes into fields of several lines as plain text. The toolkit asks the clipboard for all that it offers and, where the clipboard's owner
/// does not answer, reads what is gone by then. Guards every such field of the application that it is given to as an event filter.
class PasteGuard : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* pObject, QEvent* pEvent) override;
};

} // namespace ZARN
