#pragma once

#include "cli/CommandLive.h"
#include "live/BusLink.h"
#include "live/LiveRecorder.h"
#include "live/RecordSender.h"

namespace ZARN {

/// Listens to a CAN bus and records what comes, or sends a recording into a virtual one.
class LiveCommand : public CommandLive {
public:
    using CommandLive::CommandLive;

private:
    int work() override;
    int listen(const BusAddress& address);
    int replay(const BusAddress& address);
    void take(const LiveRecords& records);
    void tellCounts();
    int tellEnd(double seconds) const;
    /// Ends the event loop after the time that the call gives, or when the user has had enough.
    void endInTime(QTimer& timer, const std::function<void()>& end) const;

    std::unique_ptr<BusLink> mpLink;
    std::unique_ptr<LiveRecorder> mpRecorder;
    LiveCounts mTold; // at the last line
    bool mWasConnected = false;
    bool mIsFailed = false;
};

} // namespace ZARN
