#pragma once

#include <optional>
#include <string>

namespace ZARN {
class Console;
}

/// The folders of the program; that of its data is created where it is missing. The program's own object lives until the process ends.
class DataHandler {
public:
    /// Creates the folder of the data and reports all on the console.
    /// @param executableDirectory folder of the running program; @param home the user's home folder, nothing when unknown (the
    /// data paths then stay empty); @param appDataLocation the platform's folder for this program's data of this user.
    DataHandler(const std::string& executableDirectory, const std::optional<std::string>& home, const std::string& appDataLocation,
                const ZARN::Console& console);

    /// The folders of this process; an application object must exist at the first call.
    static DataHandler& instance();

    /// Settings and current project; without a trailing "/".
    [[nodiscard]] const std::string& dataPath() const { return mDataPath; }
    /// The user's own files; with a trailing "/". Made by whoever writes there first.
    [[nodiscard]] const std::string& userDataPath() const { return mUserDataPath; }
    /// What the program brings along (profiles, translations); with a trailing "/".
    [[nodiscard]] const std::string& resourcePath() const { return mResourcePath; }

private:
    std::string mDataPath;
    std::string mUserDataPath;
    std::string mResourcePath;
};
