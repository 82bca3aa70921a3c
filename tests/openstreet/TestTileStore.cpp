#include "openstreet/TileHost.h"
#include "openstreet/core/TileStore.h"

#include <QBuffer>
#include <QDirIterator>
#include <QProcess>
#include <QSignalSpy>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QTest>
#include <QTranslator>

#include <algorithm>
#include <set>

using namespace OpenStreet;
using OpenStreet::Test::TileHost;
using OpenStreet::Test::TileRequest;

namespace {

/// Puts brackets about the texts that are there to be translated.
class Brackets : public QTranslator {
public:
    Brackets() { QCoreApplication::installTranslator(this); }
    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return QByteArray(context).startsWith("OpenStreet::") ? QString(QLatin1String("[%1]")).arg(QLatin1String(source)) : QString();
    }
};

constexpr const char* kRules = R"(
    location /missing/ { return 404; }
    location /forbidden/ { return 403; }
    location /lasting/ { expires off; etag off; add_header Last-Modified ""; try_files /any.png =404; }
    location /broken/ { return 500; }
    location /busy/ { add_header Retry-After 90 always; return 429; }
    location /loop/ { return 302 $request_uri; }
    location /elsewhere/ { return 302 http://localhost:$server_port/tiles/1/1/1.png; }
    location /text/ { default_type image/png; return 200 "<html>please log in</html>"; }
    location /truncated/ { default_type image/png; try_files /truncated.png =404; }
    location /huge/ { try_files /huge.png =404; }
    location /announced/ { add_header Content-Length 5300000; return 204; }
    location /wide/ { try_files /wide.png =404; }
    location /slow/ { limit_rate 10; try_files /any.png =404; }
    location /cookie/ { add_header Set-Cookie "track=1"; try_files /any.png =404; }
)";

std::vector<TileId> block(int zoom, int left, int top, int width, int height)
{
    std::vector<TileId> result;
    for (int i = 0; i < width * height; ++i)
        result.push_back({zoom, left + i % width, top + i / width});
    return result;
}

/// A store with a folder and a clock of its own over the tile host.
struct Store {
    explicit Store(const QString& address, const QString& folder = {}) : store(nullptr, [this] { return now; })
    {
        store.setFolder(folder.isEmpty() ? own.path() : folder);
        store.setServer(TileServer(address));
        store.loader().setUserAgent("ZARN-Test/1.0 (map)");
        store.setAllowed(true);
    }
    bool waitIdle() { return QTest::qWaitFor([this] { return store.loading() == 0; }, 20000); }

    QTemporaryDir own;
    qint64 now = QDateTime::currentSecsSinceEpoch();
    TileStore store;
};

} // namespace

class TestTileStore : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { mpHost->clearLog(); }
    void cleanupTestCase() { mpHost.reset(); }
    void nothingBeforeConsent();
    void fetchesWhatIsSeen();
    void encryptedInOneConnection();
    void asksAgainOnlyWhenExpired();
    void keepsOnDisk();
    void lifeWithoutHeaders();
    void formerFolder();
    void localTiles_data();
    void localTiles();
    void failures_data();
    void failures();
    void backsOff();
    void serverGone();
    void diskLimit();

private:
    std::unique_ptr<TileHost> mpHost;
};

void TestTileStore::initTestCase()
{
    mpHost = std::make_unique<TileHost>(QString::fromLatin1(kRules));
    QVERIFY(mpHost->isRunning());
    mpHost->put("truncated.png", TileHost::tile("cut").left(400));
    mpHost->put("huge.png", TileHost::tile("huge") + QByteArray(5 * 1024 * 1024, 'x'));
    mpHost->put("wide.png", TileHost::tile("wide", "PNG", 1025));
}

void TestTileStore::nothingBeforeConsent()
{
    Store store(mpHost->address());
    store.store.setAllowed(false);
    store.store.want(block(5, 3, 3, 4, 4));
    QVERIFY(store.waitIdle());
    QVERIFY(mpHost->requests().isEmpty());
    store.store.setAllowed(true);
    QVERIFY(store.waitIdle());
    QTRY_COMPARE(mpHost->requests().size(), qsizetype(16)); // the server notes a request once it is answered
    store.store.setAllowed(false); // taken back: what is here stays, nothing new comes
    mpHost->clearLog();
    store.store.want(block(6, 3, 3, 4, 4));
    QVERIFY(store.waitIdle());
    QVERIFY(mpHost->requests().isEmpty());
}

void TestTileStore::fetchesWhatIsSeen()
{
    Store store(mpHost->address(QStringLiteral("/cookie")));
    const std::vector<TileId> view = block(9, 100, 200, 6, 5);
    store.store.want(view);
    QTRY_COMPARE_WITH_TIMEOUT(mpHost->requests().size(), qsizetype(30), 20000);
    std::set<QString> paths;
    const QList<TileRequest> requests = mpHost->requests();
    QCOMPARE(requests.size(), qsizetype(30));
    for (const TileRequest& request : requests) {
        QCOMPARE(request.status, 200);
        QCOMPARE(request.userAgent, "ZARN-Test/1.0 (map)");
        QCOMPARE(request.cookie, "-");
        QCOMPARE(request.caching, "--"); // caches on the way may answer
        QVERIFY2(request.connections <= 2, qPrintable(QString::number(request.connections)));
        paths.insert(request.path);
    }
    QCOMPARE(paths.size(), std::size_t(30)); // each once
    QCOMPARE(store.store.image(view[7]).size(), QSize(256, 256));
}

void TestTileStore::encryptedInOneConnection()
{
    QTemporaryDir folder;
    const QString key = folder.filePath("key.pem"), certificate = folder.filePath("certificate.pem");
    QProcess openssl;
    openssl.start("openssl", {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=127.0.0.1", "-addext",
                              "subjectAltName=IP:127.0.0.1", "-keyout", key, "-out", certificate});
    QVERIFY(openssl.waitForFinished(30000) && openssl.exitCode() == 0);
    const quint16 port = TileHost::freePort();
    const TileHost host(QString("listen 127.0.0.1:%1 ssl http2; ssl_certificate %2; ssl_certificate_key %3;").arg(port).arg(certificate, key));
    const QString address = QString("https://127.0.0.1:%1/tiles/{z}/{x}/{y}.png").arg(port);
    {
        Store store(address);
        store.store.want(block(9, 100, 200, 2, 2));
        QVERIFY(store.waitIdle());
        QVERIFY(store.store.image({9, 100, 200}).isNull() && host.requests().isEmpty()); // nobody vouches for this server
        QVERIFY(!store.store.lastError().isEmpty());
    }
    const QSslConfiguration usual = QSslConfiguration::defaultConfiguration();
    QSslConfiguration trusting = usual;
    trusting.addCaCertificates(QSslCertificate::fromPath(certificate));
    QSslConfiguration::setDefaultConfiguration(trusting);
    Store store(address);
    store.store.want(block(9, 100, 200, 4, 4));
    QTRY_COMPARE_WITH_TIMEOUT(host.requests().size(), qsizetype(16), 20000);
    QSslConfiguration::setDefaultConfiguration(usual);
    for (const TileRequest& request : host.requests()) {
        QCOMPARE(request.status, 200);
        QCOMPARE(request.protocol, "HTTP/2.0");
        QCOMPARE(request.connections, 1);
    }
}

void TestTileStore::asksAgainOnlyWhenExpired()
{
    Store store(mpHost->address()); // "expires 1h"
    const std::vector<TileId> view = block(7, 1, 1, 3, 1);
    store.store.want(view);
    QVERIFY(store.waitIdle());
    store.store.want({});
    store.now += 3000;
    store.store.want(view);
    QVERIFY(store.waitIdle());
    QCOMPARE(mpHost->requests().size(), qsizetype(3));
    store.store.want({});
    store.now += 700;
    store.store.want(view);
    QVERIFY(!store.store.image(view[0]).isNull()); // shown while it is asked for
    QVERIFY(store.waitIdle());
    const QList<TileRequest> requests = mpHost->requests();
    QCOMPARE(requests.size(), qsizetype(6));
    QCOMPARE(requests.last().status, 304);
    QVERIFY(requests.last().ifNoneMatch.size() > 2);
}

void TestTileStore::keepsOnDisk()
{
    QTemporaryDir folder;
    const std::vector<TileId> view = block(8, 5, 5, 4, 3);
    {
        Store store(mpHost->address(), folder.path());
        store.store.want(view);
        QVERIFY(store.waitIdle());
    }
    mpHost->clearLog();
    // Files that were damaged since are no tiles: they are fetched again.
    QDirIterator files(folder.path(), {"*.tile"}, QDir::Files, QDirIterator::Subdirectories);
    QFile damaged(files.next());
    QVERIFY(damaged.resize(damaged.size() / 2));
    QFile nonsense(files.next());
    QVERIFY(nonsense.open(QIODevice::WriteOnly | QIODevice::Truncate) && nonsense.write(QByteArray(3000, '\xff')) == 3000);
    nonsense.close();
    Store second(mpHost->address(), folder.path());
    second.store.want(view);
    QVERIFY(second.waitIdle());
    for (const TileId& id : view)
        QVERIFY(!second.store.image(id).isNull());
    QCOMPARE(mpHost->requests().size(), qsizetype(2));
    // What is kept of other zooms stands in, as far as it reaches; the disk is enough for that.
    Store third(mpHost->address(), folder.path());
    third.store.setAllowed(false);
    third.store.want({{9, 10, 10}, {7, 2, 2}, {6, 1, 1}, {15, 5 << 7, 5 << 7}, {7, 100, 100}});
    QVERIFY(third.waitIdle());
    QCOMPARE(third.store.image({9, 10, 10}).pixelColor(128, 128), QColor(214, 232, 205));
    QVERIFY(third.store.image({7, 2, 2}).pixelColor(200, 200).alpha() == 255 &&
            third.store.image({7, 2, 2}).pixelColor(50, 50).alpha() == 0);
    QVERIFY(third.store.image({6, 1, 1}).pixelColor(100, 100).alpha() == 255);
    QVERIFY(third.store.image({15, 5 << 7, 5 << 7}).isNull() && third.store.image({7, 100, 100}).isNull());
}

void TestTileStore::lifeWithoutHeaders()
{
    Store store(mpHost->address(QStringLiteral("/lasting")));
    for (const qint64 wait : {0, 6 * 24 * 3600, 2 * 24 * 3600}) { // a server that names no time of expiry is asked again after seven days
        store.now += wait;
        store.store.want({});
        store.store.want({{3, 1, 1}});
        QVERIFY(store.waitIdle());
    }
    QTRY_COMPARE(mpHost->requests().size(), qsizetype(2));
    QVERIFY(TileServer().url({1, 0, 0}).scheme() == "https");
}

void TestTileStore::formerFolder()
{
    const QTemporaryDir former;
    {
        Store before(mpHost->address(), former.path());
        before.store.want({{3, 1, 1}, {3, 2, 1}});
        QVERIFY(before.waitIdle());
    }
    mpHost->clearLog();
    Store store(mpHost->address());
    store.store.setFolder(store.own.path(), former.path());
    store.store.want({{3, 1, 1}});
    QVERIFY(store.waitIdle() && !store.store.image({3, 1, 1}).isNull());
    QVERIFY(mpHost->requests().isEmpty());
    store.now += 4000; // it expires after an hour
    store.store.want({{3, 2, 1}});
    QVERIFY(store.waitIdle());
    QTRY_COMPARE(mpHost->requests().size(), qsizetype(1));
}

void TestTileStore::localTiles_data()
{
    QTest::addColumn<QString>("script"); // of SQL, for an archive; else a folder
    QTest::addColumn<QString>("reason");
    const QString tables = "CREATE TABLE metadata (name text, value text); CREATE TABLE tiles (zoom_level, tile_column, tile_row, tile_data);";
    const QString picture = QString("x'%1'").arg(QString::fromLatin1(TileHost::tile("local").toHex()));
    QTest::newRow("archive") << tables + "INSERT INTO metadata VALUES ('name', 'My map'), ('attribution', '<a>me &amp; you</a>');"
                                    "INSERT INTO tiles VALUES (3, 1, 6, " + picture + ");"
                             << "";
    QTest::newRow("folder") << "" << "";
    QTest::newRow("vector tiles") << tables + "INSERT INTO metadata VALUES ('format', 'pbf'); INSERT INTO tiles VALUES (0, 0, 0, x'1f8b0800');"
                                  << "vector tiles";
    QTest::newRow("no tiles") << tables << "no tile";
    QTest::newRow("another database") << "CREATE TABLE a (b);" << "no archive";
    QTest::newRow("no database") << "-" << "no archive";
}

void TestTileStore::localTiles()
{
    QFETCH(QString, script);
    QFETCH(QString, reason);
    const QTemporaryDir folder;
    QString path = folder.path();
    if (script.isEmpty()) {
        QDir(path).mkpath("3/1");
        QFile file(path + "/3/1/1.png");
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(TileHost::tile("local")) > 0);
    } else {
        path += "/map.mbtiles";
        QFile text(path);
        QVERIFY(text.open(QIODevice::WriteOnly) && text.write(script == "-" ? QByteArray(5000, 'x') : QByteArray()) >= 0);
        text.close();
        QProcess sqlite;
        sqlite.start("python3", {"-c", "import sqlite3, sys; sqlite3.connect(sys.argv[1]).executescript(sys.stdin.read())", path});
        sqlite.write(script == "-" ? QByteArray() : script.toUtf8());
        sqlite.closeWriteChannel();
        QVERIFY(sqlite.waitForFinished(20000));
    }
    QString problem;
    std::unique_ptr<LocalTiles> pTiles = LocalTiles::open(path, &problem);
    QCOMPARE(pTiles != nullptr, reason.isEmpty());
    QVERIFY2(problem.contains(reason) && problem.contains(pTiles ? "" : path), qPrintable(problem));
    if (!pTiles)
        return;
    if (!script.isEmpty())
        QVERIFY(pTiles->name() == "My map" && pTiles->attribution() == "me & you");
    QCOMPARE(pTiles->highestZoom(), 3);
    Store store(mpHost->address());
    store.store.setLocal(std::move(pTiles));
    store.store.want({{3, 1, 1}, {3, 2, 1}, {2, 0, 0}}); // rows of an archive count from the south
    QVERIFY(store.waitIdle());
    QVERIFY(!store.store.image({3, 1, 1}).isNull() && store.store.image({3, 2, 1}).isNull());
    QVERIFY(store.store.image({2, 0, 0}).pixelColor(200, 200).alpha() == 255); // a smaller one stands in
    QVERIFY(mpHost->requests().isEmpty());
}

void TestTileStore::failures_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<qsizetype>("requests"); // for one tile, at once
    QTest::addColumn<QString>("reason");
    QTest::newRow("404") << "/missing" << qsizetype(1) << "[HTTP status 404]";
    QTest::newRow("403") << "/forbidden" << qsizetype(1) << "[HTTP status 403]";
    QTest::newRow("500") << "/broken" << qsizetype(1) << "[HTTP status 500]";
    QTest::newRow("redirections without end") << "/loop" << qsizetype(4) << "[HTTP status 302]";
    QTest::newRow("redirection to another server") << "/elsewhere" << qsizetype(1) << "[HTTP status 302]";
    QTest::newRow("no picture") << "/text" << qsizetype(1) << "[no picture]";
    QTest::newRow("breaks off") << "/truncated" << qsizetype(1) << "[the picture breaks off]";
    QTest::newRow("above 4 MiB") << "/huge" << qsizetype(1) << "[more than 4 MiB]";
    QTest::newRow("above 4 MiB by its header, without a body") << "/announced" << qsizetype(1) << "[more than 4 MiB]";
    QTest::newRow("above 1024 pixels") << "/wide" << qsizetype(1) << "[not a picture of at most 1024 x 1024 pixels]";
    QTest::newRow("slow") << "/slow" << qsizetype(1) << "";
}

void TestTileStore::failures()
{
    QFETCH(QString, place);
    QFETCH(qsizetype, requests);
    QFETCH(QString, reason);
    const Brackets translated;
    Store store(mpHost->address(place));
    store.store.loader().setTimeouts(400, 900);
    store.store.want({{4, 2, 2}});
    QVERIFY(store.waitIdle());
    QTRY_COMPARE(mpHost->requests().size(), requests);
    QVERIFY(store.store.image({4, 2, 2}).isNull());
    QVERIFY2(!store.store.lastError().isEmpty() && store.store.lastError().contains(reason), qPrintable(store.store.lastError()));
    QCOMPARE(store.store.disk().size(), 0);
    QVERIFY(store.store.loader().isFree());
}

void TestTileStore::backsOff()
{
    Store store(mpHost->address(QStringLiteral("/busy")));
    store.store.want(block(4, 0, 0, 4, 4));
    QVERIFY(store.waitIdle());
    QVERIFY(mpHost->requests().size() <= 2); // not a request for each tile
    const qsizetype first = mpHost->requests().size();
    store.now += 60; // the server asked for 90 seconds
    store.store.want(block(4, 0, 0, 4, 5));
    QVERIFY(store.waitIdle());
    QCOMPARE(mpHost->requests().size(), first);
    store.now += 40;
    store.store.want(block(4, 0, 0, 4, 4));
    QTRY_VERIFY(mpHost->requests().size() > first);
    QVERIFY(store.waitIdle());
    const auto lackingRequests = [this] {
        const QList<TileRequest> requests = mpHost->requests();
        return std::count_if(requests.begin(), requests.end(), [](const TileRequest& r) { return r.path.startsWith("/missing"); });
    };
    Store lacking(mpHost->address(QStringLiteral("/missing"))); // a server that answers is asked for the other tiles
    lacking.store.want(block(4, 0, 0, 2, 2));
    QVERIFY(lacking.waitIdle());
    QTRY_COMPARE(lackingRequests(), qsizetype(4));
    lacking.store.want({});
    lacking.store.want(block(4, 0, 0, 2, 2));
    QVERIFY(lacking.waitIdle());
    QCOMPARE(lackingRequests(), qsizetype(4)); // but not again for what it lacks
}

void TestTileStore::serverGone()
{
    TileHost host;
    Store store(host.address());
    const std::vector<TileId> view = block(8, 5, 5, 3, 3);
    store.store.want(view);
    QVERIFY(store.waitIdle());
    host.stop();
    store.store.want(block(8, 8, 5, 3, 3));
    QVERIFY(store.waitIdle());
    QVERIFY(!store.store.lastError().isEmpty());
    store.store.want(view);
    QVERIFY(store.waitIdle());
    QVERIFY(store.store.lastError().isEmpty()); // nothing that is seen is missing
    store.now += 100000;                        // all of it has expired
    store.store.want({});
    store.store.want(view);
    QVERIFY(store.waitIdle());
    for (const TileId& id : view)
        QVERIFY(!store.store.image(id).isNull());
}

void TestTileStore::diskLimit()
{
    QTemporaryDir folder;
    TileDisk disk;
    disk.setFolder(folder.path());
    disk.setLimit(100000);
    const TileRecord record{QByteArray(9900, 'x'), "\"tag\"", {}, 5};
    QFile foreign(folder.filePath("notes.txt"));
    QVERIFY(foreign.open(QIODevice::WriteOnly) && foreign.write("mine") == 4);
    foreign.close();
    for (int i = 0; i < 30; ++i) {
        disk.write("server", {6, i, 1}, record);
        QVERIFY(disk.read("server", {6, 0, 1})); // used all the time: it stays
        QVERIFY(disk.size() <= 100000);
    }
    QVERIFY(!disk.read("server", {6, 5, 1}));
    QVERIFY(disk.read("server", {6, 29, 1}));
    QVERIFY(!disk.read("other", {6, 29, 1}));
    TileDisk next; // the next run knows what lies there
    next.setFolder(folder.path());
    QCOMPARE(next.size(), disk.size());
    QCOMPARE(next.read("server", {6, 29, 1})->etag, record.etag);
    QVERIFY(QFile::exists(foreign.fileName()));
}

QTEST_MAIN(TestTileStore)
#include "TestTileStore.moc"
