#include "export/RecordFileGuard.h"

#include "app/FileName.h"

#include <sys/stat.h>

#include <algorithm>

namespace ZARN {

bool isRecordFileOf(const CardContainer& card, const std::string& path)
{
    struct stat target = {};
    if (::stat(path.c_str(), &target) != 0 || !S_ISREG(target.st_mode))
        return false;
    const auto isTarget = [&target](const auto& file) {
        struct stat status = {};
        return ::stat(encodeFileName(file.second.fileName).c_str(), &status) == 0 && status.st_dev == target.st_dev &&
               status.st_ino == target.st_ino;
    };
    return std::any_of(card.recordFiles().begin(), card.recordFiles().end(), isTarget);
}

} // namespace ZARN
