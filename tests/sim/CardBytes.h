#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <utility>
#include <vector>

/// One stored message, read straight from the bytes of a record file, apart from the program's own reader.
struct StoredRecord {
    std::array<char, 8> payload{};
    quint16 kind = 0;
    quint32 id = 0;
    quint64 ticks = 0;
    quint64 rest = 0; ///< extra bytes and words

    [[nodiscard]] double seconds() const { return static_cast<double>(ticks) * 31.25e-9; }
    bool operator==(const StoredRecord&) const = default;
};

/// A record file taken apart in its own byte order.
class CardBytes {
public:
    explicit CardBytes(const QString& path)
    {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            mBytes = file.readAll();
        mBig = mBytes.startsWith("\xAB\xBA");
    }

    static QStringList files(const QString& folder) { return QDir(folder).entryList(QDir::Files, QDir::Name); }

    [[nodiscard]] bool isWhole() const { return mBytes.size() > 128 && (mBytes.size() - 128) % 28 == 0; }
    [[nodiscard]] bool isBigEndian() const { return mBig; }
    [[nodiscard]] qsizetype count() const { return (mBytes.size() - 128) / 28; }
    [[nodiscard]] bool hasDate() const { return mBytes.mid(12, 8) != QByteArray(8, '\0'); }
    [[nodiscard]] QDateTime dateTime() const
    {
        const auto at = [this](int i) { return static_cast<int>(static_cast<unsigned char>(mBytes[i])); };
        return QDateTime(QDate(get<quint16>(12), at(14), at(15)), QTime(at(16), at(17), at(18)), Qt::UTC);
    }
    [[nodiscard]] quint64 headerTicks() const { return ticks(20); }
    [[nodiscard]] QByteArray identity() const
    {
        return QByteArray::number(get<quint32>(28)) + ' ' + QByteArray::number(get<quint32>(32)) + ' ' + mBytes.mid(36, 92);
    }
    [[nodiscard]] StoredRecord record(qsizetype i) const
    {
        const qsizetype at = 128 + 28 * i;
        const quint64 rest = quint64(quint8(mBytes[at + 8])) << 40 | quint64(quint8(mBytes[at + 9])) << 32 | quint64(get<quint16>(at + 16)) << 16 |
                             get<quint16>(at + 18);
        StoredRecord record{{}, get<quint16>(at + 10), get<quint32>(at + 12), ticks(at + 20), rest};
        std::copy_n(mBytes.constData() + at, 8, record.payload.begin());
        return record;
    }

private:
    template <typename Integer> [[nodiscard]] Integer get(qsizetype at) const
    {
        return mBig ? qFromBigEndian<Integer>(mBytes.constData() + at) : qFromLittleEndian<Integer>(mBytes.constData() + at);
    }
    [[nodiscard]] quint64 ticks(qsizetype at) const { return quint64(get<quint32>(at)) << 32 | get<quint32>(at + 4); }

    QByteArray mBytes;
    bool mBig = false;
};

/// The value of a payload by the data type code that it carries, unscaled.
inline double rawValue(const std::array<char, 8>& payload)
{
    const char* pData = payload.data() + 4;
    switch (payload[1]) {
    case 2: return qFromBigEndian<float>(pData);
    case 3: return qFromBigEndian<qint32>(pData);
    case 4:
    case 5: return qFromBigEndian<quint32>(pData);
    case 6: return qFromBigEndian<qint16>(pData);
    case 7:
    case 8: return qFromBigEndian<quint16>(pData);
    case 9: return static_cast<signed char>(*pData);
    case 10: return static_cast<unsigned char>(*pData);
    default: return std::nan("");
    }
}

/// Time and value of every sample, by identifier.
using Series = std::map<quint32, std::vector<std::pair<double, double>>>;
