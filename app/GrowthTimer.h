#pragma once

#include <QElapsedTimer>
#include <QTimer>

namespace ZARN {

/// Says when what was worked out of something that grows is to be worked out anew: not oftener than once a second, nor for more than a
/// fifth of the time. For one thread.
class GrowthTimer : public QObject {
    Q_OBJECT

public:
    explicit GrowthTimer(QObject* pParent = nullptr);

    /// There is more: signalDue follows, at its time.
    void grow();
    /// The work is begun, or ended.
    void begin();
    void end();
    /// Nobody wants to know of what has grown.
    void forget();
    /// Whether the work may be begun by now.
    [[nodiscard]] bool isDue() const { return !mIsWorking && (!mElapsed.isValid() || mElapsed.elapsed() >= mWait); }

Q_SIGNALS:
    void signalDue();

private:
    void arrange();

    QTimer mTimer;
    QElapsedTimer mElapsed; ///< since the work was begun
    qint64 mWait = 0;       ///< milliseconds of that
    bool mIsWorking = false;
    bool mHasGrown = false;
};

} // namespace ZARN
