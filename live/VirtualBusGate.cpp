#include "live/VirtualBusGate.h"

#include <QUrl>

namespace ZARN {

namespace {

constexpr int kAnswerPeriod = 500;      // milliseconds
constexpr quint16 kVirtualPort = 35468; // of a virtual bus without one
constexpr qint64 kLongestLine = 1024;   // a frame of 64 bytes takes 150

bool isOfBus(const QByteArray& line)
{
    return line.count('#') == 2 || line.startsWith("disconnect:");
}

} // namespace

VirtualBusGate::VirtualBusGate(QObject* pParent) : QObject(pParent), mBus(this), mServer(this)
{
    mServer.setMaxPendingConnections(1);
    connect(&mServer, &QTcpServer::newConnection, this, &VirtualBusGate::take);
    connect(&mBus, &QTcpSocket::readyRead, this, &VirtualBusGate::passToPlugin);
    connect(&mBus, &QTcpSocket::disconnected, this, [this] {
        if (mpPlugin)
            mpPlugin->disconnectFromHost();
    });
}

bool VirtualBusGate::open(const QUrl& bus)
{
    mChannel = bus.path();
    const QString host = bus.host().isEmpty() ? QStringLiteral("localhost") : bus.host();
    mBus.connectToHost(host, static_cast<quint16>(bus.port(kVirtualPort)));
    return mBus.waitForConnected(kAnswerPeriod) && mServer.listen(QHostAddress::LocalHost);
}

QString VirtualBusGate::interface() const
{
    return QStringLiteral("tcp://127.0.0.1:%1%2").arg(mServer.serverPort()).arg(mChannel);
}

void VirtualBusGate::take()
{
    mpPlugin = mServer.nextPendingConnection();
    mServer.close();
    connect(mpPlugin, &QTcpSocket::readyRead, this, &VirtualBusGate::passToBus);
    connect(mpPlugin, &QTcpSocket::disconnected, &mBus, &QTcpSocket::disconnectFromHost);
    passToBus();
    passToPlugin();
    if (mBus.state() != QAbstractSocket::ConnectedState) // hung up meanwhile, which nobody was there to be told
        mpPlugin->disconnectFromHost();
}

void VirtualBusGate::passToBus()
{
    mBus.write(mpPlugin->readAll());
}

void VirtualBusGate::passToPlugin()
{
    bool isForeign = mBus.bytesAvailable() > kLongestLine && !mBus.canReadLine();
    while (mpPlugin && !isForeign && mBus.canReadLine()) {
        const QByteArray line = mBus.readLine();
        isForeign = !isOfBus(line);
        if (!isForeign)
            mpPlugin->write(line);
    }
    if (!isForeign)
        return;
    mBus.disconnect(this);
    mBus.abort();
    Q_EMIT foreign();
}

} // namespace ZARN
