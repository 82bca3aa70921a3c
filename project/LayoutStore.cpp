#include "project/LayoutStore.h"

#include "app/Console.h"
#include "app/XmlHandler.h"
#include "profile/Profile.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace ZARN {

LayoutStore::LayoutStore(const Console& console, const QString& ownFile, const QString& language)
    : mConsole(console), mFile(console), mPath(ownFile), mLanguage(language)
{
    QDomDocument document;
    if (!UserFile::isThere(mPath) || !mFile.read(document, mPath))
        return;
    const auto layouts = readLayouts(document, {});
    mIsForeign = !layouts;
    mOwn = layouts.value_or(std::vector<DisplayLayout>());
}

void LayoutStore::setProfileFolders(const QStringList& folders)
{
    mShipped.clear();
    for (const QString& folder : folders) {
        if (mShipped.empty() && QFileInfo::exists(folder + '/' + kFileName))
            mShipped = read(folder + '/' + kFileName).value_or(std::vector<DisplayLayout>());
    }
}

std::optional<std::vector<DisplayLayout>> LayoutStore::read(const QString& path) const
{
    QDomDocument document;
    return XmlHandler(mConsole).xmlReadFile(document, path) ? readLayouts(document, mLanguage) : std::nullopt;
}

std::vector<DisplayLayout> LayoutStore::all() const
{
    std::vector<DisplayLayout> layouts = mShipped;
    for (const DisplayLayout& layout : mOwn) {
        if (!isShipped(layout.name)) // another profile ships one of that name
            layouts.push_back(layout);
    }
    return layouts;
}

const DisplayLayout* LayoutStore::find(const QString& name) const
{
    for (const auto* pLayouts : {&mShipped, &mOwn}) {
        const auto found = std::ranges::find(*pLayouts, name, &DisplayLayout::name);
        if (found != pLayouts->end())
            return &*found;
    }
    return nullptr;
}

DisplayLayout* LayoutStore::findOwn(const QString& name)
{
    const auto found = std::ranges::find(mOwn, name, &DisplayLayout::name);
    return found == mOwn.end() ? nullptr : &*found;
}

bool LayoutStore::isShipped(const QString& name) const
{
    return std::ranges::find(mShipped, name, &DisplayLayout::name) != mShipped.end();
}

bool LayoutStore::isShippedText(const QString& text) const
{
    return isShipped(text) || std::ranges::find(mShipped, text, &DisplayLayout::text) != mShipped.end();
}

QStringList LayoutStore::missing(const DisplayLayout& layout, const Profile& profile)
{
    QStringList names;
    for (const DisplayLayout::Parameter& parameter : layout.parameters) {
        if (!profile.model().find(parameter.name))
            names.append(QString::fromStdString(parameter.name));
    }
    return names;
}

bool LayoutStore::save(const DisplayLayout& layout)
{
    DisplayLayout* pOwn = findOwn(layout.name);
    if (layout.name.isEmpty() || isShipped(layout.name) || (!pOwn && mOwn.size() >= DisplayLayout::kMostLayouts))
        return false;
    if (pOwn)
        *pOwn = layout;
    else
        mOwn.push_back(layout);
    return write();
}

bool LayoutStore::rename(const QString& from, const QString& to)
{
    DisplayLayout* pOwn = findOwn(from);
    if (!pOwn || to.isEmpty() || find(to))
        return false;
    pOwn->name = to;
    return write();
}

bool LayoutStore::remove(const QString& name)
{
    return std::erase_if(mOwn, [&](const DisplayLayout& layout) { return layout.name == name; }) > 0 && write();
}

bool LayoutStore::exportTo(const QString& path, const QString& name) const
{
    const DisplayLayout* pLayout = find(name);
    return pLayout && XmlHandler(mConsole).xmlWriteFile(layoutDocument({*pLayout}, mConsole), path);
}

QStringList LayoutStore::importFrom(const QString& path)
{
    QStringList names;
    for (DisplayLayout& layout : read(path).value_or(std::vector<DisplayLayout>())) {
        if (mOwn.size() >= DisplayLayout::kMostLayouts)
            break;
        layout.name = freeName(layout.name);
        layout.title.clear();
        names.append(layout.name);
        mOwn.push_back(std::move(layout));
    }
    if (!names.isEmpty())
        write();
    return names;
}

QString LayoutStore::freeName(const QString& name) const
{
    QString free = name;
    for (int number = 2; find(free); ++number)
        free = QString("%1 %2").arg(name.left(DisplayLayout::kLongestName - 5)).arg(number);
    return free;
}

bool LayoutStore::write()
{
    if (std::exchange(mIsForeign, false))
        UserFile::putAside(mPath, "damaged");
    return mFile.write(layoutDocument(mOwn, mConsole), mPath);
}

} // namespace ZARN
