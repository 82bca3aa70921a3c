#pragma once

#include "live/BusLink.h"
#include "live/LiveRecorder.h"

namespace ZARN {

/// What is wanted of a bus.
struct LiveWish {
    BusAddress address;
    int bitRate = 0; ///< bits a second to set on the interface; 0 leaves it as the system has it
    bool isListenOnly = true; ///< an interface that tells that it confirms frames is not opened
    QString folder;  ///< to record into; empty: nothing is recorded
};

/// How a link and its recording are.
struct LiveStatus {
    BusLink::EState state = BusLink::eClosed;
    QString reason;    ///< why it is not connected
    QString busStatus; ///< as BusLink tells it
    EConfirming confirming = EConfirming::eUnknown;
    LiveCounts counts;
    uint64_t recorded = 0; ///< records
    bool isRecording = false;
    QString recordingError; ///< why not, or no longer
};

/// A link with its recorder on the thread of a LiveFeed, where no window holds them up.
class LiveWorker : public QObject {
    Q_OBJECT

public:
    explicit LiveWorker(const LiveWish& wish);

    void open();
    void close();

Q_SIGNALS:
    /// @param now the wall clock
    void received(const ZARN::LiveRecords& records, const QDateTime& now);
    void status(const ZARN::LiveStatus& status);

private:
    void take(const LiveRecords& records);
    void tell();
    void keepError();

    BusLink mLink;
    std::unique_ptr<LiveRecorder> mpRecorder;
    LiveStatus mStatus;
    QTimer mTimer;
};

} // namespace ZARN
