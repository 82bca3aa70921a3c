#pragma once

#include "live/LiveWorker.h"

#include <QCoreApplication>
#include <QElapsedTimer>

namespace ZARN {

/// Tells people how a bus is, in one line, with its rates over the last second or so.
class LiveText {
    Q_DECLARE_TR_FUNCTIONS(ZARN::LiveText)

public:
    static constexpr qint64 kSilence = 2000; ///< milliseconds without a frame from which on that is told

    /// @param bitRate of the bus; 0 when it is not known  @param folder that is recorded into
    explicit LiveText(QString bus = {}, int bitRate = 0, QString folder = {})
        : mBus(std::move(bus)), mBitRate(bitRate), mFolder(std::move(folder))
    {
    }

    /// To be called with each status that is told.
    void take(const LiveStatus& status);
    [[nodiscard]] QString text() const;
    /// Whether something is not as it should be.
    [[nodiscard]] bool isTrouble() const;

private:
    [[nodiscard]] QString connection() const;
    [[nodiscard]] QString counts() const;
    [[nodiscard]] QString recording() const;
    /// That nothing has come for a while; empty while something does, and before.
    [[nodiscard]] QString silence() const;

    QString mBus;
    int mBitRate;
    QString mFolder;
    LiveStatus mStatus;
    bool mWasConnected = false;
    QElapsedTimer mClock;
    QElapsedTimer mSinceFrames; ///< runs from the first one on
    LiveCounts mBefore; ///< when the rates were worked out
    double mFrames = 0.0;  ///< a second
    double mBits = 0.0;    ///< a second
};

} // namespace ZARN
