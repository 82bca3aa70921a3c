#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace OpenStreet {

/// The picture of a tile out of what a server or the disk delivers, which may be anything.
class TileImage {
public:
    static constexpr qint64 kMaxBytes = qint64(4) * 1024 * 1024;
    static constexpr int kMaxEdge = 1024;
    static constexpr int kKeptEdge = 512; ///< larger pictures are kept smaller

    /// @param pReason receives why a picture is refused, for people. @return a null image when the bytes are no whole picture in PNG, JPEG
    /// or WebP, have more than kMaxBytes or more than kMaxEdge pixels along an edge. Else 32 bits a pixel, premultiplied alpha.
    [[nodiscard]] static QImage decode(const QByteArray& bytes, QString* pReason = nullptr);

private:
    [[nodiscard]] static const char* format(const QByteArray& bytes);
    [[nodiscard]] static bool isWhole(const QByteArray& bytes);
};

} // namespace OpenStreet
