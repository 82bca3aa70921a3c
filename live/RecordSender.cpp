#include "live/RecordSender.h"

#include "card/record/CanFrame.h"
#include "card/record/RecordData.h"

#include <QCanBus>
#include <QCanBusDevice>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kPeriod = 2;               // milliseconds
constexpr std::size_t kMostFrames = 400; // a period: what is sent faster would only pile up in memory

} // namespace

RecordSender::RecordSender(const RecordData& data, double speed, QObject* pParent) : QObject(pParent), mSpeed(speed), mTimer(this)
{
    mFrames.reserve(data.count());
    data.forEachInOrder([this](uint32_t identifier, const StoredRecord& record) {
        if (CanFrame::of(identifier, record))
            mFrames.push_back({identifier, record});
        else
            ++mLeftOut;
    });
    mTimer.setTimerType(Qt::PreciseTimer);
    connect(&mTimer, &QTimer::timeout, this, &RecordSender::send);
}

RecordSender::~RecordSender() = default;

QString RecordSender::open(const BusAddress& address)
{
    if (!address.isVirtual())
        return tr("%1: recordings are sent into a virtual bus only (virtualcan), never to an engine").arg(address.text());
    QString error;
    mpDevice.reset(QCanBus::instance()->createDevice(address.plugin, address.interface, &error));
    if (!mpDevice)
        return address.text() + ": " + error;
    connect(mpDevice.get(), &QCanBusDevice::stateChanged, this, [this](QCanBusDevice::CanBusDeviceState state) {
        if (state == QCanBusDevice::ConnectedState) {
            mElapsed.start();
            mTimer.start(kPeriod);
        } else if (state == QCanBusDevice::UnconnectedState) {
            mTimer.stop();
            Q_EMIT finished(mIsEnding ? mProblem : tr("the bus is gone"));
        }
    });
    return mpDevice->connectDevice() ? QString() : address.text() + ": " + mpDevice->errorString();
}

void RecordSender::stop()
{
    end({});
}

void RecordSender::send()
{
    // Times that stand back in a recording go out at once, in their place.
    const double due = static_cast<double>(mElapsed.nsecsElapsed()) * 1e-9 * mSpeed;
    const std::size_t end = std::min(mFrames.size(), mSent + kMostFrames);
    for (; mSent < end; ++mSent) {
        const auto& [identifier, record] = mFrames[mSent];
        if (record.time() - mFrames.front().record.time() > due)
            return;
        const CanFrame sent = CanFrame::of(identifier, record).value();
        QCanBusFrame frame(sent.identifier, QByteArray(reinterpret_cast<const char*>(sent.payload.data()), static_cast<qsizetype>(sent.length)));
        frame.setExtendedFrameFormat(sent.isExtended);
        if (!mpDevice->writeFrame(frame))
            return this->end(mpDevice->errorString());
    }
    if (mSent == mFrames.size())
        this->end({});
}

void RecordSender::end(const QString& problem)
{
    mTimer.stop();
    if (mIsEnding)
        return;
    mIsEnding = true;
    mProblem = problem;
    mpDevice->disconnectDevice(); // tells when all has been written
}

} // namespace ZARN
