#pragma once

#include <QByteArray>
#include <QString>

namespace OpenStreet {

/// What qCompress() made smaller; empty when it is damaged. Who calls it bounds the size that stands in its first four bytes.
[[nodiscard]] QByteArray unpacked(const QByteArray& packed);

/// Reads the numbers and texts of packed map data one after the other. Counts are believed only as far as there are bytes; after the first
/// thing that cannot be, everything is 0 and empty.
class PackedReader {
public:
    explicit PackedReader(const QByteArray& bytes, qsizetype position = 0) : mBytes(bytes), mPosition(position) {}

    [[nodiscard]] bool isGood() const { return mGood; }
    [[nodiscard]] bool isAtEnd() const { return mPosition == mBytes.size(); }
    void refuse() { mGood = false; }

    [[nodiscard]] quint32 number();
    [[nodiscard]] int signedNumber();
    [[nodiscard]] quint8 byte();
    /// A count of things that take a byte each at least.
    [[nodiscard]] quint32 count();
    [[nodiscard]] QString text();

private:
    const QByteArray mBytes;
    qsizetype mPosition;
    bool mGood = true;
};

} // namespace OpenStreet
