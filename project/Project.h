#pragma once

#include "app/UserFile.h"

#include <QString>

#include <map>
#include <set>
#include <string>

namespace ZARN {

class Profile;

/// The user's working choices over the loaded profile: which parameters are shown, those computed by formulas, and a set of named CAN properties. Names
/// outlive the profile: one that the current profile lacks is kept and applies again when a profile has it. The desktop program
/// has one project, reached by instance(). Byte strings are UTF-8.
class Project {
public:
    Project(const Console& console, Profile& profile) : mConsole(console), mProfile(profile), mFile(console) {}
    Project(const Project&) = delete;
    Project& operator=(const Project&) = delete;
    static Project& instance();

    /// Forgets the names, the CAN properties and the formulas; the parameters' flags stay until setProfileData().
    void clear();
    /// Takes in a project file and applies it to the profile. What the file states replaces what was there: its names the names,
    /// its CAN properties the CAN properties; of what it says nothing about, everything stays. @return false, with a console line
    /// and nothing changed, when the file cannot be read or is not well-formed.
    bool readProject(const QString& path);
    /// Takes the selected parameters over from the profile and writes the project file. @return true also when the file could not be
    /// written: a console line and file() say so, and the old file is then untouched.
    bool saveProject(const QString& path);
    /// What became of the project files.
    [[nodiscard]] UserFile& file() { return mFile; }
    /// Shows exactly those parameters of the current profile whose names are in the project.
    void setProfileData();
    /// Takes over which parameters of the current profile are shown; names that it lacks stay.
    void takeProfileData();

    /// The names of the selected parameters.
    [[nodiscard]] const std::set<std::string>& parameterNames() const { return mNames; }
    [[nodiscard]] const std::map<std::string, std::string>& canProperties() const { return mCanProperties; }
    void setCanProperties(const std::map<std::string, std::string>& properties) { mCanProperties = properties; }

private:
    void readRoot(const QDomElement& root);

    const Console& mConsole;
    Profile& mProfile;
    UserFile mFile;
    std::set<std::string> mNames;
    std::map<std::string, std::string> mCanProperties; // value by id
};

} // namespace ZARN
