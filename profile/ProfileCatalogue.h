#pragma once

#include <QString>

#include <map>
#include <string>
#include <vector>

namespace ZARN {

class Console;

/// An entry of the profile selector: a profile file and the variant that it is loaded with.
struct ProfileEntry {
    QString text;        ///< what the selector shows and the setting "Profile" holds
    QString path;        ///< of the profile file; empty only when there is no profile at all
    std::string variant; ///< empty for none
};

/// The profiles that there are to choose from: one folder a profile, each with a "Profile.xml", below the "profiles" folder of the
/// resources and below that of the user's data. A valid profile in the user's folder wins over the shipped one of the same folder name.
class ProfileCatalogue {
public:
    /// Reads the folders. @param resourcePath with a trailing "/"; @param dataPath without one, empty when there is none.
    ProfileCatalogue(const Console& console, const std::string& resourcePath, const std::string& dataPath);

    /// Reads the folders again, after an installation.
    void refresh();
    /// One entry a variant of each profile, by folder name and in the profile's order; one for a profile that declares no variant.
    [[nodiscard]] const std::vector<ProfileEntry>& entries() const { return mEntries; }

    /// What the setting "Profile" names: an entry by its text, or a profile file by its path (loaded without a variant; its text is the
    /// path, unless the file has an entry of its own without a variant), or a folder, for its first entry. @return an empty entry when it
    /// names nothing.
    [[nodiscard]] ProfileEntry find(const QString& setting) const;
    /// The entry of a profile file with that variant, or its first one. @return an empty entry when the file is none of the catalogue's.
    [[nodiscard]] ProfileEntry entryOf(const QString& file, const std::string& variant) const;

    /// Where a new profile file goes: in place of the "Profile.xml" in the folder of the loaded one, or, where that folder cannot be
    /// written, below the user's data in a folder of the same name. Creates nothing.
    /// @param loadedFile path of the loaded profile, empty when none is or when it is none of the catalogue's; the new file then names the
    /// folder.
    [[nodiscard]] QString installPath(const QString& loadedFile, const QString& newFile) const;

private:
    /// The variants of a profile by folder name, and the path of its file.
    struct Found {
        QString path;
        std::vector<std::string> variants; ///< without double and empty ones
    };
    bool readProfile(const QString& path, Found& found) const;
    void readFolder(const QString& folder, std::map<QString, Found>& profiles) const;

    const Console& mConsole;
    QString mShippedFolder;
    QString mUserFolder; ///< empty when there is none
    std::vector<ProfileEntry> mEntries;
};

} // namespace ZARN
