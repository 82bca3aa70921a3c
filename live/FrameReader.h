#pragma once

#include "live/LiveClock.h"
#include "live/LiveRecord.h"

class QCanBusFrame;

namespace ZARN {

/// Makes records of the frames of a bus and counts what it meets.
class FrameReader {
public:
    /// @param hostMicroseconds of a clock that never jumps, at reception
    void read(const QCanBusFrame& frame, int64_t hostMicroseconds, LiveRecords& records);
    [[nodiscard]] const LiveCounts& counts() const { return mCounts; }

private:
    bool count(const QCanBusFrame& frame);

    LiveClock mClock;
    LiveCounts mCounts;
};

} // namespace ZARN
