#include "app/UserFile.h"

#include "app/Console.h"
#include "app/XmlGuard.h"
#include "app/XmlHandler.h"

#include <QFile>

#include <filesystem>

namespace ZARN {

namespace {

namespace fs = std::filesystem;

constexpr int kMostNames = 10000;

fs::path nativePath(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

} // namespace

bool UserFile::read(QDomDocument& document, const QString& path)
{
    const bool isRead = XmlHandler(mConsole).xmlReadFile(document, path);
    if (!isRead && isThere(path))
        mUnread.insert(path);
    else
        mUnread.erase(path);
    return isRead;
}

bool UserFile::write(const QDomDocument& document, const QString& path)
{
    // What the next start refuses would cost all that the old file held.
    const std::string text = document.toString(4).toStdString();
    mWritten = XmlGuard::accepts(text) && makeRoom(path);
    if (!mWritten)
        mConsole.print("could not open file for writing !<%s>\n", path.toUtf8().constData());
    mWritten = mWritten && XmlHandler(mConsole).xmlWriteText(text, path);
    tell(mWritten ? EEvent::eWritten : EEvent::eNotWritten, path);
    return mWritten;
}

bool UserFile::isThere(const QString& path)
{
    std::error_code error;
    switch (fs::status(nativePath(path), error).type()) {
    case fs::file_type::not_found:
    case fs::file_type::block:
    case fs::file_type::character:
    case fs::file_type::fifo:
    case fs::file_type::socket: return false;
    default: return true;
    }
}

bool UserFile::makeRoom(const QString& path)
{
    if (!isUnread(path))
        return true;
    const QString name = putAside(path, "damaged");
    if (name.isEmpty() && isThere(path))
        return false;
    mUnread.erase(path);
    if (name.isEmpty())
        return true; // gone meanwhile
    mConsole.print("put aside <%s>\n", name.toUtf8().constData());
    tell(EEvent::ePutAside, name);
    return true;
}

QString UserFile::putAside(const QString& path, const QString& label)
{
    for (int number = 1; number < kMostNames; ++number) {
        const QString name = QString("%1.%2-%3").arg(path, label, QString::number(number));
        std::error_code error;
        if (fs::symlink_status(nativePath(name), error).type() != fs::file_type::not_found)
            continue;
        fs::rename(nativePath(path), nativePath(name), error);
        return error ? QString() : name;
    }
    return {};
}

void UserFile::tell(EEvent event, const QString& path) const
{
    if (mListener)
        mListener(event, path);
}

} // namespace ZARN
