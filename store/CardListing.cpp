#include "store/CardListing.h"

#include "app/Console.h"
#include "app/FileName.h"
#include "app/Progress.h"
#include "card/record/RecordFormats.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace ZARN {

namespace {

struct CloseFolder {
    void operator()(DIR* pFolder) const { ::closedir(pFolder); }
};

double secondsOf(const struct stat& status)
{
#ifdef __APPLE__
    const timespec& time = status.st_mtimespec;
#else
    const timespec& time = status.st_mtim;
#endif
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Calls `visit` with the name and status of each entry. @return 0, or the error that ended the listing
template <typename Visitor> int forEachEntry(const std::string& path, Visitor visit)
{
    const std::unique_ptr<DIR, CloseFolder> pFolder(::opendir(path.c_str()));
    if (!pFolder)
        return errno;
    for (;;) {
        errno = 0;
        const dirent* pEntry = ::readdir(pFolder.get());
        if (!pEntry)
            return errno;
        const std::string name = pEntry->d_name;
        struct stat status = {};
        if (name != "." && name != ".." && ::fstatat(::dirfd(pFolder.get()), pEntry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0)
            visit(name, status);
    }
}

/// Whether one of the files is a record, and not only called like one.
bool holdsRecord(const CardListing& listing)
{
    const Console silent([](std::string_view) {}, [](std::string_view) {}, false);
    return std::ranges::any_of(listing.files, [&](const ListedFile& file) {
        return RecordFormats::reader(decodeFileName(listing.path + "/" + file.name), silent, nullProgress()) != nullptr;
    });
}

std::string absolutePath(const std::string& path)
{
    std::error_code ignored;
    std::string absolute = std::filesystem::absolute(path, ignored).lexically_normal();
    while (absolute.size() > 1 && absolute.ends_with('/'))
        absolute.pop_back();
    return absolute;
}

} // namespace

CardListing listCard(const std::string& path)
{
    CardListing listing{path, {}, {}};
    const int error = forEachEntry(path, [&](const std::string& name, const struct stat& entry) {
        struct stat status = entry;
        if (name.starts_with('.') || !RecordFormats::ofName(name))
            return;
        if (S_ISLNK(entry.st_mode) && ::stat((path + "/" + name).c_str(), &status) != 0)
            return;
        if (S_ISREG(status.st_mode))
            listing.files.push_back({name, status.st_size, secondsOf(status)});
    });
    if (error != 0)
        listing.problem = std::strerror(error);
    RecordFormats::keepCard(listing.files, &ListedFile::name);
    std::ranges::sort(listing.files, {}, &ListedFile::name);
    return listing;
}

void CardFinder::add(const std::string& path)
{
    const std::string absolute = absolutePath(path);
    const std::size_t cards = mFound.cards.size(), failures = mFound.failures.size();
    search(absolute);
    if (mFound.cards.size() == cards && mFound.failures.size() == failures)
        mFound.failures.push_back({absolute, tr("the folder holds no record file (%1)").arg(RecordFormats::patternText()).toStdString(), false});
}

void CardFinder::search(const std::string& folder)
{
    std::vector<std::string> folders;
    bool mayBeCard = false;
    const int error = forEachEntry(folder, [&](const std::string& name, const struct stat& status) {
        if (S_ISDIR(status.st_mode))
            folders.push_back(folder == "/" ? folder + name : folder + "/" + name);
        else
            mayBeCard = mayBeCard || (!name.starts_with('.') && RecordFormats::ofName(name));
    });
    if (error != 0)
        mFound.failures.push_back({folder, error == ENOENT ? tr("no such folder").toStdString() : std::strerror(error), true});
    const bool isCard = mayBeCard && holdsRecord(listCard(folder));
    if (isCard || error == 0)
        (isCard ? mFound.cards : mFound.others).push_back(folder);
    for (const std::string& below : folders)
        search(below);
}

CardFinder::Found CardFinder::take()
{
    for (std::vector<std::string>* pPaths : {&mFound.cards, &mFound.others}) {
        std::ranges::sort(*pPaths);
        pPaths->erase(std::unique(pPaths->begin(), pPaths->end()), pPaths->end());
    }
    std::erase_if(mFound.others, [this](const std::string& path) {
        return std::ranges::find(mFound.failures, path, &Failure::path) != mFound.failures.end();
    });
    return std::move(mFound);
}

} // namespace ZARN
