#pragma once

#include "project/Session.h"

#include <QObject>

namespace ZARN {

class LogbookWorker;
class RecordSession;

/// Asks the logbook where the parameters of the loaded cycle lay in earlier flights of its engine, and tells the record. Owned by the logbook's
/// controller.
class NormalRangeController : public QObject {
    Q_OBJECT

public:
    /// What it is given outlives it.
    NormalRangeController(const Session& session, RecordSession& record, LogbookWorker& worker, QObject* pParent);

private:
    void slotRecord();
    void ask();

    const Session mSession;
    RecordSession& mRecord;
    LogbookWorker& mWorker;
    unsigned mShown = 0; ///< the version of the record that was asked for
    int mAsked = 0;
};

} // namespace ZARN
