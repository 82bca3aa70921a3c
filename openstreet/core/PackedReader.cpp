#include "openstreet/core/PackedReader.h"

namespace OpenStreet {

QByteArray unpacked(const QByteArray& packed)
{
    const QByteArray bytes = qUncompress(packed);
    return bytes.isEmpty() ? qUncompress(packed) : bytes; // lack of memory for a moment looks like damage
}

quint8 PackedReader::byte()
{
    if (mGood && mPosition < mBytes.size())
        return static_cast<quint8>(mBytes[mPosition++]);
    mGood = false;
    return 0;
}

quint32 PackedReader::number()
{
    quint32 result = 0;
    for (int shift = 0; shift < 32 && mGood; shift += 7) {
        const quint8 next = byte();
        result |= static_cast<quint32>(next & 127U) << shift;
        if (mGood && next < 128)
            return result;
    }
    mGood = false;
    return 0;
}

int PackedReader::signedNumber()
{
    const quint32 zigzag = number();
    return static_cast<int>(zigzag >> 1) ^ -static_cast<int>(zigzag & 1);
}

quint32 PackedReader::count()
{
    const quint32 result = number();
    if (static_cast<qint64>(result) <= mBytes.size() - mPosition)
        return result;
    mGood = false;
    return 0;
}

QString PackedReader::text()
{
    const auto length = static_cast<qsizetype>(count());
    const QString result = QString::fromUtf8(mBytes.mid(mPosition, length));
    mPosition += length;
    return result;
}

} // namespace OpenStreet
