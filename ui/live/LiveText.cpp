#include "ui/live/LiveText.h"

#include "app/Numeric.h"

#include <QDir>
#include <QLocale>
#include <QStringList>

#include <cmath>

namespace ZARN {

namespace {

constexpr qint64 kRatePeriod = 900;    // milliseconds
constexpr int kUsualBitRate = 1'000'000;

QString number(double value)
{
    return QLocale().toString(static_cast<qlonglong>(std::llround(value)));
}

/// For the forms of a text with a number.
int plural(uint64_t count)
{
    return saturatingCast<int>(static_cast<double>(count));
}

} // namespace

void LiveText::take(const LiveStatus& status)
{
    if (status.counts.frames != mStatus.counts.frames)
        mSinceFrames.start();
    mStatus = status;
    mWasConnected |= status.state == BusLink::eConnected;
    const qint64 elapsed = mClock.isValid() ? mClock.elapsed() : 0;
    if (mClock.isValid() && elapsed < kRatePeriod)
        return;
    mClock.start();
    if (elapsed > 0) {
        const double seconds = static_cast<double>(elapsed) / 1000.0;
        const auto rate = [seconds](uint64_t now, uint64_t before) { return static_cast<double>(now - before) / seconds; };
        mFrames = rate(status.counts.frames, mBefore.frames);
        mBits = rate(status.counts.bits, mBefore.bits);
    }
    mBefore = status.counts;
}

QString LiveText::connection() const
{
    if (mStatus.state == BusLink::eClosed)
        return tr("%1: disconnected").arg(mBus);
    if (mStatus.state == BusLink::eConnected) {
        const QString text = mStatus.confirming == EConfirming::eAlways ? tr("%1: connected, nothing is sent, but frames are confirmed").arg(mBus)
                                                                        : tr("%1: connected, only listening").arg(mBus);
        return mStatus.busStatus.isEmpty() ? text : tr("%1, bus %2").arg(text, mStatus.busStatus);
    }
    const QString text = mWasConnected ? tr("%1: connection lost, trying again ...") : tr("%1: connecting ...");
    return text.arg(mBus) + (mStatus.reason.isEmpty() ? QString() : " (" + mStatus.reason + ")");
}

QString LiveText::counts() const
{
    const LiveCounts& counts = mStatus.counts;
    QStringList parts;
    if (mStatus.state == BusLink::eConnected) {
        const int bitRate = mBitRate > 0 ? mBitRate : kUsualBitRate;
        parts << tr("%1 frames/s").arg(number(mFrames))
              << tr("load %1 % of %2 kbit/s").arg(number(mBits * 100.0 / bitRate), number(bitRate / 1000.0));
    } else {
        parts << tr("%Ln frame(s)", nullptr, plural(counts.frames));
    }
    parts << tr("%Ln error(s)", nullptr, plural(counts.errors))
          << tr("frames lost: %Ln time(s)", nullptr, plural(counts.losses));
    if (counts.remote + counts.fd > 0)
        parts << tr("%Ln frame(s) of other kinds", nullptr, plural(counts.remote + counts.fd));
    return parts.join(", ");
}

QString LiveText::recording() const
{
    if (!mStatus.recordingError.isEmpty())
        return tr("NOT RECORDED: %1").arg(mStatus.recordingError);
    if (mStatus.recorded == 0 && !mStatus.isRecording)
        return {};
    return tr("%Ln frame(s) recorded into %1", nullptr, plural(mStatus.recorded)).arg(QDir(mFolder).dirName());
}

QString LiveText::silence() const
{
    const bool isSilent = mStatus.state != BusLink::eClosed && mSinceFrames.isValid() && mSinceFrames.hasExpired(kSilence);
    return isSilent ? tr("NO FRAMES for %1 s").arg(number(static_cast<double>(mSinceFrames.elapsed() / 1000))) : QString();
}

QString LiveText::text() const
{
    QStringList parts{connection(), counts()};
    if (const QString recorded = recording(); !recorded.isEmpty())
        parts.insert(1, recorded); // it must be seen in narrow windows
    if (const QString silent = silence(); !silent.isEmpty())
        parts.prepend(silent);
    return parts.join("  |  ");
}

bool LiveText::isTrouble() const
{
    return !mStatus.recordingError.isEmpty() || !silence().isEmpty() || (mStatus.state == BusLink::eConnecting && mWasConnected);
}

} // namespace ZARN
