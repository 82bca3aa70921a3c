#include "fuzz/DatabaseInput.h"
#include "openstreet/core/LocalTiles.h"
#include "openstreet/core/TileImage.h"
#include "store/Database.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QTemporaryDir>

// An archive of tiles of which the input changes bytes, or fields to whatever SQLite takes. It is opened or the reason said, and not written.

using namespace OpenStreet;

namespace {

const QTemporaryDir& folder()
{
    static const QTemporaryDir folder("/dev/shm/FuzzTileArchive-XXXXXX");
    return folder;
}

std::string picture()
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    REQUIRE(image.save(&buffer, "PNG"));
    return "x'" + buffer.data().toHex().toStdString() + "'";
}

const QByteArray& wholeArchive()
{
    static const QByteArray bytes = [] {
        const QString path = folder().filePath("whole");
        ZARN::Database database(path.toStdString(), ZARN::Database::eReadWrite);
        const std::string rows = "(0, 0, 0, " + picture() + "), (3, 4, 5, " + picture() + "), (22, 4194303, 0, " + picture() + ")";
        REQUIRE(database.run("PRAGMA page_size = 512; CREATE TABLE metadata (name, value); CREATE TABLE tiles "
                             "(zoom_level, tile_column, tile_row, tile_data); INSERT INTO metadata VALUES ('name', 'a'), ('format', 'png'), "
                             "('attribution', '<a href=\"b\">c</a>'); INSERT INTO tiles VALUES " + rows));
        database.close();
        return contentOf(path);
    }();
    return bytes;
}

void changeFields(const QString& path, Input& input)
{
    constexpr const char* fields[][2] = {{"metadata", "name"},     {"metadata", "value"},  {"tiles", "zoom_level"},
                                         {"tiles", "tile_column"}, {"tiles", "tile_row"}, {"tiles", "tile_data"}};
    ZARN::Database database(path.toStdString(), ZARN::Database::eReadWrite);
    for (int i = 0; i < 8 && !input.empty(); ++i) {
        const auto& [pTable, pColumn] = fields[input.byte() % std::size(fields)];
        const std::string row = std::to_string(1 + input.byte() % 3);
        const uint8_t size = input.byte();
        const std::string value = size & 0x80 ? "zeroblob(" + std::to_string(size % 8 << 20) + ")" : literal(input);
        database.run(std::string("UPDATE ") + pTable + " SET " + pColumn + " = " + value + " WHERE rowid = " + row);
    }
}

void read(const QString& path, bool isWhole)
{
    QString problem;
    const std::unique_ptr<LocalTiles> pTiles = LocalTiles::open(path, &problem);
    REQUIRE((pTiles != nullptr) == problem.isEmpty());
    REQUIRE(pTiles || !isWhole);
    if (!pTiles)
        return;
    REQUIRE(pTiles->highestZoom() >= 0 && pTiles->highestZoom() <= TileId::kMaxZoom);
    REQUIRE(pTiles->name().size() <= 1000 && pTiles->attribution().size() <= 1000);
    for (const TileId& id : {TileId{0, 0, 0}, TileId{3, 4, 2}, TileId{22, 4194303, 4194303}, TileId{7, 1, 1}}) {
        const std::optional<QByteArray> bytes = pTiles->read(id);
        REQUIRE(!bytes || bytes->size() <= TileImage::kMaxBytes);
        REQUIRE(!isWhole || bytes.has_value() == (id.zoom != 7));
        if (bytes)
            (void)TileImage::decode(*bytes);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, std::size_t size)
{
    static int count = 1;
    static char name[] = "FuzzTileArchive";
    static char* arguments[] = {name, nullptr};
    static const QGuiApplication application(count, arguments); // the attribution is HTML
    Input input(pData, size);
    const bool isWhole = size == 0;
    const QString path = folder().filePath("archive");
    const QByteArray before = putChanged(path, wholeArchive(), input, [&] { changeFields(path, input); });
    read(path, isWhole);
    REQUIRE(contentOf(path) == before);
    return 0;
}
