#pragma once

#include "app/UserFile.h"

#include <map>
#include <string>
#include <string_view>

namespace ZARN {

/// The settings: names with values that are stored as text; types exist in the getters and setters alone. Setters change
/// the memory only, writeXmlFile() makes a change last. Each reader brings its own default. The program's own
/// object lives until the process ends; byte strings are UTF-8.
class Property {
public:
    explicit Property(const Console& console) : mConsole(console), mFile(console) {}
    static Property& instance();

    /// Remembers the path of the settings file; reads nothing.
    void setConfigFile(const std::string& path) { mConfigFile = path; }

    bool readXmlFile() { return readXmlFile(mConfigFile); }
    /// Merges the file's entries and writes the outcome to the console. @return true always: without a settings file the program starts too.
    bool readXmlFile(const std::string& path);
    bool writeXmlFile() const { return writeXmlFile(mConfigFile); }
    /// Replaces the file by all entries that are not empty.
    /// @return false, with a console line and the old file as it was, when it cannot be written or could not be read back.
    bool writeXmlFile(const std::string& path) const;
    /// What became of the settings file.
    [[nodiscard]] UserFile& file() const { return mFile; }
    /// Whether there is a settings file that could not be read: everything has its default then.
    [[nodiscard]] bool isUnread() const;
    [[nodiscard]] const std::string& configFile() const { return mConfigFile; }

    bool readConfigFile() { return readConfigFile(mConfigFile); }
    /// Remembers the path and replaces all entries by the file's "key = value" lines. @return false, with nothing else changed, when
    /// it cannot be read.
    bool readConfigFile(const std::string& path);
    /// Merges the entries of the config file, read as readConfigFile() does. @return false when it cannot be read.
    bool update();

    /// Removes every character of the set from both ends of the text.
    static void strip(std::string& text, std::string_view characters);

    [[nodiscard]] std::string getString(const std::string& key, const std::string& fallback) const;
    /// The leading decimal integer of the value, saturated; 0 when there is none.
    [[nodiscard]] int getInt(const std::string& key, int fallback) const;
    /// The leading number of the value, with "." as the decimal point in every locale; 0.0 when there is none.
    [[nodiscard]] double getDouble(const std::string& key, double fallback) const;
    /// True for exactly "true", "TRUE" and "True".
    [[nodiscard]] bool getSwitch(const std::string& key, bool fallback) const;

    void setString(const std::string& key, const std::string& value);
    void setInt(const std::string& key, int value);
    /// Stores six significant digits.
    void setDouble(const std::string& key, double value);
    void setSwitch(const std::string& key, bool value);

private:
    [[nodiscard]] const std::string* find(const std::string& key) const;
    void readLine(std::string line);
    void readLines(std::string_view text);

    const Console& mConsole;
    mutable UserFile mFile;
    std::string mConfigFile;
    std::map<std::string, std::string> mProperties;
};

} // namespace ZARN
