#include "store/CardArchive.h"

#include "app/Console.h"
#include "app/FileName.h"
#include "app/SafeFile.h"
#include "store/CycleIdentity.h"
#include "store/StoreText.h"

#include <QFileInfo>

#include <filesystem>
#include <fstream>

#include <fcntl.h>
#include <unistd.h>

namespace ZARN {

namespace {

constexpr std::size_t kBlock = 1024 * 1024;

namespace Files = std::filesystem;

/// Has the next reader of a file ask the medium.
void forgetCached(const std::string& path)
{
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return;
    ::fdatasync(file);
#ifdef POSIX_FADV_DONTNEED
    ::posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED);
#endif
    ::close(file);
}

bool isSame(const std::string& one, const std::string& other)
{
    std::ifstream a(one, std::ios::binary), b(other, std::ios::binary);
    std::string blockA(kBlock, '\0'), blockB(kBlock, '\0');
    while (a && b) {
        a.read(blockA.data(), kBlock);
        b.read(blockB.data(), kBlock);
        const std::streamsize length = a.gcount();
        if (length != b.gcount() || std::string_view(blockA.data(), static_cast<std::size_t>(length)) !=
                                        std::string_view(blockB.data(), static_cast<std::size_t>(length)))
            return false;
    }
    return a.eof() && b.eof();
}

} // namespace

std::string CardArchive::folderOf(const std::string& engine, const std::string& cycle) const
{
    std::string name = QByteArray::fromStdString(engine).toPercentEncoding("-_").toStdString(); // no "." or ".." either
    return mRoot + "/" + name.substr(0, 200) + "/" + cycle;
}

std::vector<std::string> CardArchive::foldersOf(const std::string& cycle) const
{
    std::vector<std::string> folders;
    std::error_code error;
    for (Files::directory_iterator engine(mRoot, error), end; !error && engine != end; engine.increment(error)) {
        std::error_code ignored;
        if (Files::path folder = engine->path() / cycle; Files::is_directory(folder, ignored))
            folders.push_back(folder);
    }
    return folders;
}

std::string CardArchive::copy(const std::string& from, const std::string& to)
{
    std::ifstream source(from, std::ios::binary);
    SafeFile target(to);
    std::string block(kBlock, '\0');
    bool isGood = target.open();
    while (isGood && source) {
        source.read(block.data(), kBlock);
        isGood = target.write(std::string_view(block.data(), static_cast<std::size_t>(source.gcount())));
    }
    if (!isGood || !source.eof() || !target.commit())
        return target.error().empty() ? from + ": " + tr("it cannot be read").toStdString() : target.error();
    forgetCached(to);
    return isSame(from, to) ? std::string() : to + ": " + tr("the copy differs from the card").toStdString();
}

std::string CardArchive::addCycle(const std::vector<std::string>& files, const std::string& folder) const
{
    std::error_code error;
    if (Files::exists(folder, error))
        return {};
    const std::string draft = folder + ".part";
    Files::remove_all(draft, error);
    Files::create_directories(draft, error);
    if (error)
        return draft + ": " + error.message();
    for (const std::string& file : files) {
        if (std::string problem = copy(file, draft + file.substr(file.rfind('/'))); !problem.empty()) {
            Files::remove_all(draft, error);
            return problem;
        }
    }
    Files::rename(draft, folder, error);
    return error ? folder + ": " + error.message() : std::string();
}

std::string CardArchive::add(const std::string& card, Progress& progress) const
{
    const DecodingContext context;
    CardContainer container(mConsole, context, progress);
    if (!container.readContainer(decodeFileName(card)))
        return card + ": " + tr("the folder cannot be listed").toStdString();
    for (const auto& [number, cycle] : container.recordCycles()) {
        const CycleHead head = cycleHead(container, number, cycle);
        if (progress.isCancelled())
            return {};
        if (head.id.empty())
            return card + ": " + tr("it cannot be read").toStdString();
        if (std::string problem = addCycle(cyclePaths(cycle), folderOf(head.engine.id, head.id)); !problem.empty())
            return problem;
    }
    return {};
}

std::optional<CyclePlace> findCycle(const std::vector<std::string>& folders, const std::string& cycle, const Console& console, Progress& progress)
{
    const DecodingContext context;
    for (const std::string& folder : folders) {
        CardContainer container(console, context, progress);
        if (!QFileInfo::exists(decodeFileName(folder)) || !container.readContainer(decodeFileName(folder)))
            continue;
        for (const auto& [number, found] : container.recordCycles()) {
            if (progress.isCancelled())
                return {};
            if (cycleHead(container, number, found).id == cycle)
                return CyclePlace{container.path(), number};
        }
    }
    return {};
}

} // namespace ZARN
