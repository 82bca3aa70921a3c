#pragma once

#include "project/Session.h"

#include <QObject>
#include <QTimer>

#include <functional>

class QAction;

namespace ZARN {

class DialogData;
class DialogXy;
class RecordSession;

/// Opens the window of one parameter over another, and tells it what is marked in the graph. Owned by the main window; what it is given
/// outlives it.
class XyController : public QObject {
    Q_OBJECT

public:
    XyController(const Session& session, RecordSession& record, DialogData& data, QAction& action, QWidget* pWindow);

    void open();

private:
    DialogData& mData;
    std::function<DialogXy*()> mCreate;
    DialogXy* mpWindow = nullptr; ///< once it was asked for; owned by the main window
    QTimer mDelay;                ///< while the marker is dragged
};

} // namespace ZARN
