#include "app/DataHandler.h"

#include "app/Console.h"
#include "vesk/base/Directory.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>

#include <cstdlib>

namespace {

using VESK::FileSystem::Directory;

std::string parentOf(const std::string& directory)
{
    const std::size_t slash = directory.rfind('/');
    return slash == std::string::npos ? std::string() : directory.substr(0, slash);
}

void ensureDirectory(const std::string& path, const char* name, const ZARN::Console& console)
{
    if (!Directory::exists(path) && Directory::createDirectoryRecursive(path))
        console.print("%s created <%s>\n", name, path.c_str());
}

} // namespace

DataHandler::DataHandler(const std::string& executableDirectory, const std::optional<std::string>& home, const std::string& appDataLocation,
                         const ZARN::Console& console)
    : mResourcePath(parentOf(executableDirectory) + "/Resources/")
{
    if (home) {
        console.print("HOME: <%s>\n", home->c_str());
        mUserDataPath = *home + "/ZARN/";
        mDataPath = *home + "/Library/ZARN/";
        if (!appDataLocation.empty()) {
            Directory::createDirectoryRecursive(appDataLocation);
            mDataPath = appDataLocation;
        }
    }
    ensureDirectory(mDataPath, "DataPath", console);
    console.print("Data Path      : <%s>\n", mDataPath.c_str());
    console.print("User Data Path : <%s>\n", mUserDataPath.c_str());
    console.print("Resource Path  : <%s>\n", mResourcePath.c_str());
}

DataHandler& DataHandler::instance()
{
    static DataHandler handler = [] {
        const char* home = std::getenv("HOME");
        return DataHandler(QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString(),
                           home ? std::optional<std::string>(home) : std::nullopt,
                           QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).toStdString(),
                           ZARN::Console::standardOutput());
    }();
    return handler;
}
