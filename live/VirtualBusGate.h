#pragma once

#include <QObject>
#include <QTcpServer>
#include <QTcpSocket>

class QUrl;

namespace ZARN {

/// Stands between the toolkit's plugin of the virtual bus and what serves that bus: the plugin takes whatever listens at an address for a
/// bus, and does not survive a line that is no frame. Passes on what a bus sends, and ends at the first other line.
class VirtualBusGate : public QObject {
    Q_OBJECT

public:
    explicit VirtualBusGate(QObject* pParent = nullptr);

    /// @param bus the address of a virtual bus, as the plugin takes it
    /// @return whether somebody serves it; if not, the plugin itself will, or tells why not
    bool open(const QUrl& bus);
    /// Where the plugin finds what is passed on.
    [[nodiscard]] QString interface() const;

Q_SIGNALS:
    /// What answers is no bus. Nothing is passed on any more.
    void foreign();

private:
    void take();
    void passToPlugin();
    void passToBus();

    QString mChannel;
    QTcpSocket mBus;
    QTcpServer mServer;
    QTcpSocket* mpPlugin = nullptr;
};

} // namespace ZARN
