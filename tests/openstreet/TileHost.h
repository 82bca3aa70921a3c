#pragma once

#include <QByteArray>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <optional>

namespace OpenStreet::Test {

/// One line of the server's log.
struct TileRequest {
    int connections; ///< open ones, its own with them
    QString path;
    int status = 0;
    QString userAgent;
    QString ifNoneMatch;
    QString protocol;
    QString cookie;
    QString caching; ///< what it asks of caches on the way
};

/// A real nginx on a free port of 127.0.0.1 that serves generated tiles below "/tiles/". Its folder, log and process are its own.
class TileHost {
public:
    /// @param rules further lines for the server's configuration, for failures and headers.
    explicit TileHost(const QString& rules = {});
    ~TileHost() { stop(); }

    [[nodiscard]] bool isRunning() const { return mProcess.state() == QProcess::Running; }
    void stop();
    /// The template of the tiles.
    [[nodiscard]] QString address(const QString& place = QStringLiteral("/tiles")) const;
    [[nodiscard]] QString name() const { return QStringLiteral("127.0.0.1:%1").arg(mPort); }
    /// A file below the server's root.
    void put(const QString& path, const QByteArray& bytes) const;
    /// What was asked for since the start or the last clearLog(); only requests that are over.
    [[nodiscard]] QList<TileRequest> requests() const;
    void clearLog() const;

    /// A picture of a tile as a server draws it, 256 x 256.
    [[nodiscard]] static QByteArray tile(const QString& text, const char* pFormat = "PNG", int edge = 256);

    [[nodiscard]] static quint16 freePort();

private:
    [[nodiscard]] QByteArray configuration(const QString& rules) const;

    QTemporaryDir mFolder;
    quint16 mPort;
    QProcess mProcess;
};

} // namespace OpenStreet::Test
