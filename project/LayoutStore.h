#pragma once

#include "app/UserFile.h"
#include "project/DisplayLayout.h"

namespace ZARN {

class Profile;

/// The layouts that there are to choose from: those that are shipped beside the profile in force, and the user's own, which are kept in a
/// file of the user's and written whenever they change. No two have one name. The main window owns it.
class LayoutStore {
public:
    /// Shipped ones, beside a "Profile.xml", and the user's own, below the data, are in a file of this name.
    static constexpr const char* kFileName = "Layouts.xml";

    /// Reads the user's own. @param ownFile path of their file  @param language for the titles of shipped ones, "de"
    LayoutStore(const Console& console, const QString& ownFile, const QString& language);

    /// Takes the shipped ones of another profile: those of the first of these folders that has some.
    void setProfileFolders(const QStringList& folders);

    /// Shipped ones first.
    [[nodiscard]] std::vector<DisplayLayout> all() const;
    /// Null when there is none of that name; valid until the store changes.
    [[nodiscard]] const DisplayLayout* find(const QString& name) const;
    [[nodiscard]] bool isShipped(const QString& name) const;
    /// Whether a shipped one is called so, or told so in the user's language.
    [[nodiscard]] bool isShippedText(const QString& text) const;
    /// The names of parameters of a layout that the profile does not have.
    [[nodiscard]] static QStringList missing(const DisplayLayout& layout, const Profile& profile);

    // Changes of the user's own. @return false, with nothing changed, when the name is empty or a shipped one's, or there are too many; or
    // when the file could not be written, which file() tells, and the change lasts until the program ends.
    /// Adds it, or replaces the one of that name.
    bool save(const DisplayLayout& layout);
    bool rename(const QString& from, const QString& to);
    bool remove(const QString& name);
    /// Writes one to a file of its own. @return false with the file as it was
    bool exportTo(const QString& path, const QString& name) const;
    /// Adds the layouts of a file; those whose names are taken are given a number. @return their names; none when it holds no layouts
    QStringList importFrom(const QString& path);

    [[nodiscard]] UserFile& file() { return mFile; }
    [[nodiscard]] const QString& path() const { return mPath; }
    /// Whether the user's own are there, but could not be read.
    [[nodiscard]] bool isUnread() const { return mIsForeign || mFile.isUnread(mPath); }

private:
    std::optional<std::vector<DisplayLayout>> read(const QString& path) const;
    [[nodiscard]] DisplayLayout* findOwn(const QString& name);
    [[nodiscard]] QString freeName(const QString& name) const;
    bool write();

    const Console& mConsole;
    UserFile mFile;
    const QString mPath;
    bool mIsForeign = false; ///< what is there is no file of layouts
    const QString mLanguage;
    std::vector<DisplayLayout> mShipped;
    std::vector<DisplayLayout> mOwn;
};

} // namespace ZARN
