#include "live/FrameReader.h"

#include "card/record/CanFrame.h"

#include <QCanBusFrame>

#include <algorithm>

namespace ZARN {

namespace {

constexpr uint64_t kStandardFrame = 47; // bits beside the data, with the pause between frames
constexpr uint64_t kExtendedFrame = 67;

} // namespace

/// @return whether the frame makes a record.
bool FrameReader::count(const QCanBusFrame& frame)
{
    const auto length = static_cast<uint64_t>(frame.payload().size());
    const bool isRemote = frame.frameType() == QCanBusFrame::RemoteRequestFrame;
    if ((frame.frameType() != QCanBusFrame::DataFrame && !isRemote) || !frame.isValid()) {
        // The controller's own trouble is that its buffer ran over.
        const bool isLoss = frame.isValid() && frame.error().testFlag(QCanBusFrame::ControllerError);
        ++(isLoss ? mCounts.losses : mCounts.errors);
        return false;
    }
    mCounts.bits += (frame.hasExtendedFrameFormat() ? kExtendedFrame : kStandardFrame) + (isRemote ? 0 : 8 * length);
    if (isRemote) {
        ++mCounts.remote;
    } else if (frame.hasFlexibleDataRateFormat() || length > sizeof(Payload)) {
        ++mCounts.fd;
    } else {
        ++mCounts.frames;
        return true;
    }
    return false;
}

void FrameReader::read(const QCanBusFrame& frame, int64_t hostMicroseconds, LiveRecords& records)
{
    if (!count(frame))
        return;
    const QCanBusFrame::TimeStamp stamp = frame.timeStamp();
    // Seconds that no clock has would not fit as microseconds.
    const qint64 seconds = std::clamp<qint64>(stamp.seconds(), 0, INT64_MAX / 4'000'000);
    const uint64_t ticks = mClock.ticks(seconds * 1'000'000 + stamp.microSeconds() % 1'000'000, hostMicroseconds);
    const QByteArray payload = frame.payload();
    CanFrame kept{frame.frameId(), frame.hasExtendedFrameFormat(), {}, static_cast<std::size_t>(payload.size())};
    std::copy_n(payload.begin(), payload.size(), kept.payload.begin());
    records.push_back({kept.recordIdentifier(), kept.record(ticks)});
}

} // namespace ZARN
