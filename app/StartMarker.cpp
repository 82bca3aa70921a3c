#include "app/StartMarker.h"

#include "app/RegularFile.h"
#include "app/UserFile.h"

#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <cerrno>
#include <fstream>

#include <signal.h>
#include <unistd.h>

namespace ZARN {

namespace {

bool isRunning(long process)
{
    return process > 0 && (kill(static_cast<pid_t>(process), 0) == 0 || errno == EPERM);
}

} // namespace

StartMarker::StartMarker(const std::string& dataPath) : mPath(dataPath.empty() ? std::string() : dataPath + "/ZARN.starting") {}

bool StartMarker::begin()
{
    if (mPath.empty())
        return false;
    const auto left = readRegularFile(mPath, 32);
    const long owner = left ? std::strtol(left->c_str(), nullptr, 10) : 0;
    // A second program that starts at the same time is no failure of the first, and must not take its marker.
    if (left && owner != getpid() && isRunning(owner))
        return false;
    std::ofstream(mPath, std::ios::trunc) << getpid() << '\n';
    mIsSet = true;
    return left.has_value();
}

void StartMarker::succeed()
{
    if (mIsSet)
        std::remove(mPath.c_str());
    mIsSet = false;
}

bool StartMarker::putAside(const std::string& dataPath)
{
    bool isDone = true;
    for (const char* name : {"/ZARN.ini", "/CurrentProject.xml"}) {
        const QString path = QFile::decodeName(dataPath.c_str()) + name;
        isDone = (!UserFile::putAside(path, "old").isEmpty() || !QFile::exists(path)) && isDone;
    }
    return isDone;
}

} // namespace ZARN
