#pragma once

#include "live/ControllerMode.h"
#include "live/FrameReader.h"
#include "live/VirtualBusGate.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>

class QCanBusDevice;

namespace ZARN {

/// Listens to a CAN interface and hands its frames on in batches, some thirty a second. It never sends. An interface that goes away
/// or is not there yet is tried again every second. Lives in any thread that has an event loop.
class BusLink : public QObject {
    Q_OBJECT

public:
    enum EState { eClosed, eConnecting, eConnected };
    Q_ENUM(EState)

    /// @param bitRate bits a second to set on the interface; 0 leaves it as the system has it.
    /// @param isListenOnly an interface that confirms frames is not opened, as long as it does; only some tell that
    explicit BusLink(BusAddress address, int bitRate = 0, bool isListenOnly = false, QObject* pParent = nullptr);
    ~BusLink() override;

    void open();
    void close();
    [[nodiscard]] EState state() const { return mState; }
    [[nodiscard]] const LiveCounts& counts() const { return mReader.counts(); }
    /// What the interface says about the bus: "good", "warning", "error", "off"; empty when it says nothing.
    [[nodiscard]] QString busStatus() const;
    /// What the interface did when it was opened.
    [[nodiscard]] EConfirming isConfirming() const { return mConfirming; }

Q_SIGNALS:
    /// Never empty.
    void received(const ZARN::LiveRecords& records);
    /// @param reason for people, why it is not connected; each only once while it lasts.
    void stateChanged(ZARN::BusLink::EState state, const QString& reason);

private:
    void connectDevice();
    /// What the plugin is to open.
    QString gatedInterface();
    void watch();
    void read();
    void handOn();
    void lose(const QString& reason);
    void setState(EState state, const QString& reason);

    BusAddress mAddress;
    int mBitRate;
    bool mIsListenOnly;
    EConfirming mConfirming = EConfirming::eUnknown;
    std::unique_ptr<VirtualBusGate> mpGate;
    std::unique_ptr<QCanBusDevice> mpDevice;
    FrameReader mReader;
    LiveRecords mRecords;
    EState mState = eClosed;
    QString mReason;
    QElapsedTimer mHost;
    QTimer mBatchTimer;
    QTimer mRetryTimer;
};

} // namespace ZARN
