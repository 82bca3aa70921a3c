#include "openstreet/TileHost.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

namespace OpenStreet::Test {

namespace {

// $1 folder, $2 port, $3 further rules
constexpr const char* kConfiguration = R"(
daemon off;
master_process off;
pid %1/nginx.pid;
error_log %1/error.log warn;
events { worker_connections 64; }
http {
    log_format line '$connections_active|$request_uri|$status|$http_user_agent|$http_if_none_match|$server_protocol|$http_cookie|$http_cache_control$http_pragma';
    access_log %1/access.log line;
    client_body_temp_path %1/body; proxy_temp_path %1/proxy; fastcgi_temp_path %1/fastcgi; uwsgi_temp_path %1/uwsgi; scgi_temp_path %1/scgi;
    types { image/png png; text/html html; }
    keepalive_timeout 60;
    server {
        listen 127.0.0.1:%2;
        root %1/root;
        etag on;
        expires 1h;
        location /tiles/ { try_files $uri /any.png; }
        %3
    }
}
)";

} // namespace

TileHost::TileHost(const QString& rules) : mPort(freePort())
{
    QDir(mFolder.path()).mkpath(QStringLiteral("root"));
    put(QStringLiteral("any.png"), tile(QStringLiteral("tile")));
    QFile file(mFolder.filePath(QStringLiteral("nginx.conf")));
    if (file.open(QIODevice::WriteOnly))
        file.write(configuration(rules));
    file.close();
    mProcess.setProcessChannelMode(QProcess::ForwardedChannels);
    const QString program = QFileInfo::exists(QStringLiteral("/usr/sbin/nginx")) ? QStringLiteral("/usr/sbin/nginx") : QStringLiteral("nginx");
    mProcess.start(program, {QStringLiteral("-p"), mFolder.path(), QStringLiteral("-e"), mFolder.filePath(QStringLiteral("error.log")),
                             QStringLiteral("-c"), file.fileName()});
    mProcess.waitForStarted(5000);
    QElapsedTimer waiting;
    waiting.start();
    QTcpSocket probe;
    do {
        probe.connectToHost(QStringLiteral("127.0.0.1"), mPort);
        if (probe.waitForConnected(200))
            return;
        QThread::msleep(20);
    } while (waiting.elapsed() < 5000);
}

void TileHost::stop()
{
    if (mProcess.state() == QProcess::NotRunning)
        return;
    mProcess.terminate();
    mProcess.waitForFinished(5000);
}

quint16 TileHost::freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

QByteArray TileHost::configuration(const QString& rules) const
{
    return QString::fromLatin1(kConfiguration).arg(mFolder.path()).arg(mPort).arg(rules).toUtf8();
}

QString TileHost::address(const QString& place) const
{
    return QStringLiteral("http://%1%2/{z}/{x}/{y}.png").arg(name(), place);
}

void TileHost::put(const QString& path, const QByteArray& bytes) const
{
    const QString full = mFolder.filePath(QStringLiteral("root/") + path);
    QDir().mkpath(QFileInfo(full).path());
    QFile file(full);
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
}

QList<TileRequest> TileHost::requests() const
{
    QFile file(mFolder.filePath(QStringLiteral("access.log")));
    QList<TileRequest> result;
    if (!file.open(QIODevice::ReadOnly))
        return result;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const QStringList parts = line.split(QLatin1Char('|'));
        if (parts.size() == 8)
            result << TileRequest{parts[0].toInt(), parts[1], parts[2].toInt(), parts[3], parts[4], parts[5], parts[6], parts[7]};
    }
    return result;
}

void TileHost::clearLog() const
{
    QFile(mFolder.filePath(QStringLiteral("access.log"))).resize(0);
}

QByteArray TileHost::tile(const QString& text, const char* pFormat, int edge)
{
    QImage image(edge, edge, QImage::Format_RGB32);
    image.fill(QColor(214, 232, 205));
    QPainter painter(&image);
    painter.setPen(QColor(120, 150, 110));
    painter.drawRect(0, 0, edge - 1, edge - 1);
    painter.drawLine(0, edge / 3, edge, edge / 2);
    painter.drawText(image.rect(), Qt::AlignCenter, text);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, pFormat);
    return bytes;
}

} // namespace OpenStreet::Test
