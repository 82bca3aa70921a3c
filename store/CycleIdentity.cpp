#include "store/CycleIdentity.h"

#include "app/FileName.h"
#include "card/record/RecordReader.h"
#include "store/StoreText.h"

#include <QCryptographicHash>

namespace ZARN {

namespace {

constexpr int64_t kPart = 64 * 1024;

/// @return false when not all of it could be read
bool addPart(QCryptographicHash& hash, FILE* pFile, int64_t from, int64_t length)
{
    QByteArray bytes(static_cast<qsizetype>(length), '\0');
    if (fseeko(pFile, static_cast<off_t>(from), SEEK_SET) != 0)
        return false;
    if (std::fread(bytes.data(), 1, static_cast<std::size_t>(length), pFile) != static_cast<std::size_t>(length))
        return false;
    hash.addData(bytes);
    return true;
}

bool addFile(QCryptographicHash& hash, const std::string& path)
{
    int64_t size = 0;
    const File file = RecordReader::openFile(decodeFileName(path), size);
    if (!file)
        return false;
    hash.addData(QByteArray::number(static_cast<qlonglong>(size)) + '\n');
    const int64_t part = std::min(size, kPart);
    return addPart(hash, file.get(), 0, part) && addPart(hash, file.get(), size - part, part);
}

} // namespace

std::string cycleIdentity(const std::vector<std::string>& paths)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const std::string& path : paths) {
        if (!addFile(hash, path))
            return {};
    }
    return hash.result().toHex().toStdString();
}

std::string nameOfCard(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

std::string engineOfCard(const std::string& name)
{
    return "card:" + storeText(name);
}

EngineIdentity cycleEngine(const CardContainer& card, const RecordCycle& cycle)
{
    EngineIdentity engine;
    for (const RecordInfo& info : cycle.files) { // of a text that differs, the last one that is there counts
        const auto take = [](std::string& text, const std::string& told) { text = told.empty() ? text : storeText(told); };
        take(engine.serial, info.engineSerial);
        take(engine.type, info.engineType);
        take(engine.ecuType, info.ecuType);
        if (info.ecuSerialNumber != 0)
            engine.ecuSerial = info.ecuSerialNumber;
    }
    if (!engine.serial.empty())
        engine.id = engine.serial;
    else if (engine.ecuSerial)
        engine.id = "ecu:" + std::to_string(*engine.ecuSerial);
    else
        engine.id = engineOfCard(encodeFileName(card.name()));
    return engine;
}

std::vector<std::string> cyclePaths(const RecordCycle& cycle)
{
    std::vector<std::string> paths;
    for (const RecordInfo& info : cycle.files)
        paths.push_back(encodeFileName(info.fileName));
    return paths;
}

bool holdsCycle(const CardListing& folder, const std::map<std::string, int64_t>& files, const std::string& id)
{
    std::vector<std::string> paths;
    for (const ListedFile& file : folder.files) {
        const auto found = files.find(storeText(file.name));
        if (found != files.end() && found->second == file.size)
            paths.push_back(folder.path + "/" + file.name);
    }
    return !paths.empty() && paths.size() == files.size() && cycleIdentity(paths) == id;
}

CycleHead cycleHead(const CardContainer& card, uint32_t number, const RecordCycle& cycle)
{
    const QDateTime date = isStoreDate(cycle.dateTime) ? cycle.dateTime : QDateTime();
    return {cycleIdentity(cyclePaths(cycle)), cycleEngine(card, cycle), number, date};
}

} // namespace ZARN
