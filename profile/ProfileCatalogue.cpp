#include "profile/ProfileCatalogue.h"

#include "profile/ProfileXml.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace ZARN {

namespace {

const QString kFileName = QStringLiteral("Profile.xml");
const QString kFolderName = QStringLiteral("profiles/");

/// Puts "folder/" before every text that stands more than once.
void separateTexts(std::vector<ProfileEntry>& entries)
{
    std::map<QString, int> counts;
    for (const ProfileEntry& entry : entries)
        ++counts[entry.text];
    for (ProfileEntry& entry : entries) {
        if (counts[entry.text] > 1)
            entry.text.prepend(QFileInfo(entry.path).dir().dirName() + "/");
    }
}

/// The usual name says nothing: the folder of such a file tells one profile from another.
QString nameOf(const QFileInfo& file)
{
    const bool isUsual = file.fileName().compare(kFileName, Qt::CaseInsensitive) == 0;
    const QString folder = isUsual ? file.absoluteDir().dirName() : QString();
    return folder.isEmpty() ? file.completeBaseName() : folder;
}

} // namespace

ProfileCatalogue::ProfileCatalogue(const Console& console, const std::string& resourcePath, const std::string& dataPath)
    : mConsole(console), mShippedFolder(QFile::decodeName(resourcePath.c_str()) + kFolderName),
      mUserFolder(dataPath.empty() ? QString() : QFile::decodeName(dataPath.c_str()) + "/" + kFolderName)
{
    refresh();
}

bool ProfileCatalogue::readProfile(const QString& path, Found& found) const
{
    const ProfileXml reader(mConsole);
    QDomDocument document;
    if (!QFileInfo(path).isFile() || !reader.xmlReadFile(document, path) || !ProfileXml::isProfile(document.documentElement()))
        return false;
    found = {path, {}};
    for (const ProfileVariant& variant : reader.variantsOf(document.documentElement())) {
        if (!variant.name.empty() && std::ranges::find(found.variants, variant.name) == found.variants.end())
            found.variants.push_back(variant.name);
    }
    return true;
}

void ProfileCatalogue::readFolder(const QString& folder, std::map<QString, Found>& profiles) const
{
    if (folder.isEmpty())
        return;
    for (const QString& name : QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        Found found;
        if (readProfile(folder + name + "/" + kFileName, found))
            profiles[name] = found;
    }
}

void ProfileCatalogue::refresh()
{
    std::map<QString, Found> profiles;
    readFolder(mShippedFolder, profiles);
    readFolder(mUserFolder, profiles);
    mEntries.clear();
    for (const auto& [name, found] : profiles) {
        for (const std::string& variant : found.variants)
            mEntries.push_back({QString::fromStdString(variant), found.path, variant});
        if (found.variants.empty())
            mEntries.push_back({name, found.path, {}});
    }
    separateTexts(mEntries);
}

ProfileEntry ProfileCatalogue::find(const QString& setting) const
{
    if (setting.isEmpty())
        return {};
    for (const bool isText : {true, false}) {
        const auto named = std::ranges::find_if(
            mEntries, [&](const ProfileEntry& entry) { return (isText ? entry.text : QFileInfo(entry.path).dir().dirName()) == setting; });
        if (named != mEntries.end())
            return *named;
    }
    Found found;
    if (!readProfile(setting, found))
        return {};
    const ProfileEntry own = entryOf(setting, {});
    return own.text.isEmpty() || !own.variant.empty() ? ProfileEntry{setting, setting, {}} : own;
}

ProfileEntry ProfileCatalogue::entryOf(const QString& file, const std::string& variant) const
{
    ProfileEntry first;
    for (const ProfileEntry& entry : mEntries) {
        if (QFileInfo(entry.path) != QFileInfo(file))
            continue;
        if (entry.variant == variant)
            return entry;
        if (first.text.isEmpty())
            first = entry;
    }
    return first;
}

QString ProfileCatalogue::installPath(const QString& loadedFile, const QString& newFile) const
{
    const QString folder = loadedFile.isEmpty() ? QString() : QFileInfo(loadedFile).absolutePath();
    const QFileInfo folderInfo(folder);
    if (!folder.isEmpty() && (mUserFolder.isEmpty() || (folderInfo.isDir() && folderInfo.isWritable())))
        return folder + "/" + kFileName;
    const QString name = folderInfo.fileName().isEmpty() ? nameOf(QFileInfo(newFile)) : folderInfo.fileName();
    return (mUserFolder.isEmpty() ? mShippedFolder : mUserFolder) + name + "/" + kFileName;
}

} // namespace ZARN
