#pragma once

#include "live/LiveWorker.h"

#include <QThread>

namespace ZARN {

/// Listens to a bus and records it on a thread of its own, one bus at a time. Tells what comes in the thread of its owner.
class LiveFeed : public QObject {
    Q_OBJECT

public:
    explicit LiveFeed(QObject* pParent = nullptr);
    ~LiveFeed() override;

    void open(const LiveWish& wish);
    /// The recording is whole when it returns. What was received before is still told of.
    void close();
    [[nodiscard]] bool isOpen() const { return mpWorker != nullptr; }

Q_SIGNALS:
    void received(const ZARN::LiveRecords& records, const QDateTime& now);
    /// A few times a second, and when it changes.
    void status(const ZARN::LiveStatus& status);

private:
    LiveWorker* mpWorker = nullptr;
    unsigned mRun = 0;
    QThread mThread; ///< one for all buses: what a plugin made in it stays
};

} // namespace ZARN
