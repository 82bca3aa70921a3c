#include "app/FileName.h"

#include <QFile>

#include <algorithm>

namespace ZARN {

namespace {

constexpr char16_t kFirst = 0xDC80; // stands for the byte 0x80
constexpr char16_t kLast = 0xDCFF;
constexpr char16_t kFirstByte = 0x80;

/// The length of the UTF-8 character that the bytes begin with; 0 when they begin with none.
qsizetype characterLength(const std::string& bytes, std::size_t place)
{
    const auto lead = static_cast<unsigned char>(bytes[place]);
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    const QByteArrayView piece(bytes.data() + place, static_cast<qsizetype>(std::min(length, bytes.size() - place)));
    return piece.isValidUtf8() ? piece.size() : 0;
}

bool isByte(const QString& name, qsizetype i)
{
    return name[i] >= kFirst && name[i] <= kLast && (i == 0 || !name[i - 1].isHighSurrogate());
}

} // namespace

QString decodeFileName(const std::string& bytes)
{
    if (QByteArrayView(bytes).isValidUtf8())
        return QFile::decodeName(bytes.c_str());
    QString name;
    for (std::size_t i = 0; i < bytes.size();) {
        const qsizetype length = characterLength(bytes, i);
        if (length > 0)
            name += QString::fromUtf8(bytes.data() + i, length);
        else
            name += QChar(static_cast<char16_t>(kFirst - kFirstByte + static_cast<unsigned char>(bytes[i])));
        i += static_cast<std::size_t>(std::max<qsizetype>(length, 1));
    }
    return name;
}

std::string encodeFileName(const QString& name)
{
    std::string bytes;
    qsizetype begin = 0;
    for (qsizetype i = 0; i < name.size(); ++i) {
        if (!isByte(name, i))
            continue;
        bytes += QFile::encodeName(name.mid(begin, i - begin)).toStdString();
        bytes += static_cast<char>(name[i].unicode() - kFirst + kFirstByte);
        begin = i + 1;
    }
    return bytes + QFile::encodeName(name.mid(begin)).toStdString();
}

} // namespace ZARN
