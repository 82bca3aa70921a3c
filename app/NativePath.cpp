#include "app/NativePath.h"

#include <algorithm>

namespace ZARN {

namespace {

constexpr char16_t kByte = 0xDC00; // plus the byte, which is 0x80 at least

bool isText(std::string_view bytes)
{
    return QUtf8StringView(bytes.data(), static_cast<qsizetype>(bytes.size())).isValidUtf8();
}

bool isByte(const QString& path, qsizetype position)
{
    const char16_t code = path[position].unicode();
    return code >= kByte + 0x80 && code <= kByte + 0xFF && (position == 0 || !path[position - 1].isHighSurrogate());
}

} // namespace

QString fromNativePath(std::string_view bytes)
{
    if (isText(bytes))
        return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QString path;
    while (!bytes.empty()) {
        std::size_t length = 1;
        while (length <= std::min<std::size_t>(4, bytes.size()) && !isText(bytes.substr(0, length)))
            ++length;
        if (length <= std::min<std::size_t>(4, bytes.size())) {
            path += QString::fromUtf8(bytes.data(), static_cast<qsizetype>(length));
        } else {
            length = 1;
            path += QChar(static_cast<char16_t>(kByte + static_cast<unsigned char>(bytes.front())));
        }
        bytes.remove_prefix(length);
    }
    return path;
}

std::string toNativePath(const QString& path)
{
    std::string bytes;
    qsizetype start = 0;
    for (qsizetype i = 0; i < path.size(); ++i) {
        if (!isByte(path, i))
            continue;
        bytes += path.mid(start, i - start).toStdString();
        bytes += static_cast<char>(path[i].unicode() - kByte);
        start = i + 1;
    }
    return bytes + path.mid(start).toStdString();
}

} // namespace ZARN
