#include "live/BusLink.h"

#include <QCanBus>
#include <QCanBusDevice>
#include <QUrl>
#include <QVariant>

#include <utility>

namespace ZARN {

namespace {

constexpr int kBatchPeriod = 25;    // milliseconds: each picture of 30 a second has something new
constexpr int kRetryPeriod = 1000;  // milliseconds
constexpr int kAnswerPeriod = 5000; // milliseconds: some plugins never say that nobody answers

} // namespace

BusLink::BusLink(BusAddress address, int bitRate, bool isListenOnly, QObject* pParent)
    : QObject(pParent), mAddress(std::move(address)), mBitRate(bitRate), mIsListenOnly(isListenOnly), mBatchTimer(this), mRetryTimer(this)
{
    mHost.start();
    mRetryTimer.setSingleShot(true);
    connect(&mBatchTimer, &QTimer::timeout, this, &BusLink::handOn);
    connect(&mRetryTimer, &QTimer::timeout, this, &BusLink::connectDevice);
}

BusLink::~BusLink()
{
    close();
}

void BusLink::open()
{
    mBatchTimer.start(kBatchPeriod);
    connectDevice();
}

void BusLink::close()
{
    mRetryTimer.stop();
    mBatchTimer.stop();
    if (mpDevice) {
        mpDevice->disconnect(this);
        read();
        mpDevice->disconnectDevice();
        mpDevice.reset();
    }
    mpGate.reset();
    handOn();
    setState(eClosed, {});
}

void BusLink::connectDevice()
{
    setState(eConnecting, mReason);
    if (mpDevice)
        mpDevice->disconnect(this);
    mConfirming = confirming(mAddress);
    if (mIsListenOnly && mConfirming == EConfirming::eAlways)
        return lose(tr("it confirms frames: it is opened when the system has set it to listen only"));
    QString error;
    mpDevice.reset(QCanBus::instance()->createDevice(mAddress.plugin, gatedInterface(), &error));
    if (!mpDevice)
        return lose(error);
    if (mBitRate > 0)
        mpDevice->setConfigurationParameter(QCanBusDevice::BitRateKey, mBitRate);
    watch();
    if (mpDevice->connectDevice())
        mRetryTimer.start(kAnswerPeriod);
    else
        lose(mpDevice->errorString());
}

QString BusLink::gatedInterface()
{
    mpGate.reset();
    if (!mAddress.isVirtual())
        return mAddress.interface;
    auto pGate = std::make_unique<VirtualBusGate>();
    if (!pGate->open(QUrl(mAddress.interface)))
        return mAddress.interface;
    mpGate = std::move(pGate);
    connect(
        mpGate.get(), &VirtualBusGate::foreign, this, [this] { lose(tr("what answers there is no virtual bus")); }, Qt::QueuedConnection);
    return mpGate->interface();
}

void BusLink::watch()
{
    connect(mpDevice.get(), &QCanBusDevice::framesReceived, this, &BusLink::read);
    // Queued, since the device that tells it goes.
    connect(
        mpDevice.get(), &QCanBusDevice::stateChanged, this,
        [this](QCanBusDevice::CanBusDeviceState state) {
            if (state == QCanBusDevice::ConnectedState) {
                mRetryTimer.stop();
                setState(eConnected, {});
            } else if (state == QCanBusDevice::UnconnectedState && mpDevice) {
                lose(mpDevice->errorString());
            }
        },
        Qt::QueuedConnection);
}

void BusLink::read()
{
    const int64_t now = mHost.nsecsElapsed() / 1000;
    for (const QCanBusFrame& frame : mpDevice->readAllFrames())
        mReader.read(frame, now, mRecords);
}

void BusLink::handOn()
{
    if (!mRecords.empty())
        Q_EMIT received(std::exchange(mRecords, {}));
}

void BusLink::lose(const QString& reason)
{
    if (mpDevice) {
        mpDevice->disconnect(this);
        mpDevice.release()->deleteLater();
    }
    setState(eConnecting, reason.isEmpty() ? tr("the interface is gone") : reason);
    mRetryTimer.start(kRetryPeriod);
}

void BusLink::setState(EState state, const QString& reason)
{
    if (state == mState && reason == mReason)
        return;
    mState = state;
    mReason = reason;
    Q_EMIT stateChanged(state, reason);
}

QString BusLink::busStatus() const
{
    switch (mpDevice ? mpDevice->busStatus() : QCanBusDevice::CanBusStatus::Unknown) {
    case QCanBusDevice::CanBusStatus::Good: return tr("good");
    case QCanBusDevice::CanBusStatus::Warning: return tr("warning");
    case QCanBusDevice::CanBusStatus::Error: return tr("error");
    case QCanBusDevice::CanBusStatus::BusOff: return tr("off");
    default: return {};
    }
}

} // namespace ZARN
