#include "store/StoreText.h"

#include "app/DateText.h"
#include "app/FileName.h"

#include <QCryptographicHash>

namespace ZARN {

namespace {

constexpr char16_t kFirstByte = 0xDC80, kLastByte = 0xDCFF; // what decodeFileName() makes of bytes that are no text

std::string escaped(unsigned int byte)
{
    return QString::asprintf("\\x%02X", byte).toStdString();
}

} // namespace

std::string storeText(const std::string& bytes)
{
    const QString decoded = decodeFileName(bytes);
    QString text;
    for (qsizetype i = 0; i < decoded.size(); ++i) {
        const QChar character = decoded[i];
        const char16_t code = character.unicode();
        const bool isPair = i > 0 && decoded[i - 1].isHighSurrogate();
        if (code == 0)
            text += QString::fromStdString(escaped(0));
        else if (!isPair && code >= kFirstByte && code <= kLastByte)
            text += QString::fromStdString(escaped(code & 0xFFu));
        else
            text += character;
    }
    return text.toStdString();
}

bool isStoreDate(const QDateTime& dateTime)
{
    return dateTime.isValid() && dateTime.date().year() >= 0 && dateTime.date().year() <= 9999;
}

std::string storeDate(const QDateTime& dateTime)
{
    return isStoreDate(dateTime) ? isoDateText(dateTime).toStdString() : std::string();
}

std::string hashOf(const std::string& bytes)
{
    return QCryptographicHash::hash(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())), QCryptographicHash::Sha256)
        .toHex()
        .toStdString();
}

} // namespace ZARN
