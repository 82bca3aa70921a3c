#pragma once

#include "cli/Command.h"
#include "live/BusLink.h"
#include "live/LiveRecorder.h"
#include "live/RecordSender.h"

namespace ZARN {

/// Listens to a CAN bus and records what comes, or sends a recording into a virtual one.
class CommandLive : public Command {
public:
    explicit CommandLive(CLI::App& program);
    int run() override;

private:
    int checkCall() const;
    int listen(const BusAddress& address);
    int replay(const BusAddress& address);
    void take(const LiveRecords& records);
    void tellCounts();
    int tellEnd(double seconds) const;
    /// Ends the event loop after the time that the call gives, or when the user has had enough.
    void endInTime(QTimer& timer, const std::function<void()>& end) const;

    std::string mBus;
    std::string mFolder;
    std::string mCard;
    double mSeconds = 0;
    double mSpeed = 1;
    unsigned int mCycle = 0;
    unsigned int mBitRate = 0;
    std::unique_ptr<BusLink> mpLink;
    std::unique_ptr<LiveRecorder> mpRecorder;
    LiveCounts mTold; // at the last line
    bool mWasConnected = false;
    bool mIsFailed = false;
};

} // namespace ZARN
