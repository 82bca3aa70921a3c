#include "ui/main/XyController.h"

#include "project/RecordSession.h"
#include "ui/data/DialogData.h"
#include "ui/xy/DialogXy.h"

#include <QAction>

namespace ZARN {

namespace {

constexpr int kDragging = 200; // milliseconds

} // namespace

XyController::XyController(const Session& session, RecordSession& record, DialogData& data, QAction& action, QWidget* pWindow)
    : QObject(pWindow), mData(data), mCreate([&session, &record, pWindow] { return new DialogXy(session, record, pWindow); })
{
    action.setEnabled(false);
    connect(&record, &RecordSession::recordChanged, &action, [&record, &action] { action.setEnabled(record.record() != nullptr); });
    mDelay.setSingleShot(true);
    mDelay.setInterval(kDragging);
    connect(&mData, &DialogData::signalCurves, &action, &QAction::trigger);
}

void XyController::open()
{
    if (!mpWindow) {
        mpWindow = mCreate();
        connect(&mDelay, &QTimer::timeout, this, [this] { mpWindow->setMarked(mData.graph().markedSpan()); });
        connect(&mData, &DialogData::signalMarker, &mDelay, qOverload<>(&QTimer::start));
        connect(&mData, &DialogData::signalSettings, mpWindow, &DialogXy::refresh);
    }
    mpWindow->setMarked(mData.graph().markedSpan());
    mpWindow->open();
}

} // namespace ZARN
