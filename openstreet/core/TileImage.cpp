#include "openstreet/core/TileImage.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImageReader>

#include <algorithm>

namespace OpenStreet {

const char* TileImage::format(const QByteArray& bytes)
{
    if (bytes.startsWith("\x89PNG\r\n\x1a\n"))
        return "png";
    if (bytes.startsWith("\xff\xd8\xff"))
        return "jpeg";
    if (bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WEBP")
        return "webp";
    return nullptr;
}

bool TileImage::isWhole(const QByteArray& bytes)
{
    // The decoders draw what there is of a picture that breaks off.
    if (bytes.startsWith('\x89'))
        return bytes.indexOf("IEND", std::max<qsizetype>(bytes.size() - 64, 0)) >= 0;
    if (bytes.startsWith('\xff'))
        return bytes.indexOf("\xff\xd9", std::max<qsizetype>(bytes.size() - 64, 0)) >= 0;
    return true;
}

QImage TileImage::decode(const QByteArray& bytes, QString* pReason)
{
    const auto refuse = [pReason](const char* reason) {
        if (pReason)
            *pReason = QCoreApplication::translate("OpenStreet::TileImage", reason);
        return QImage();
    };
    if (bytes.size() > kMaxBytes)
        return refuse(QT_TRANSLATE_NOOP("OpenStreet::TileImage", "more than 4 MiB"));
    const char* pFormat = format(bytes);
    if (!pFormat)
        return refuse(QT_TRANSLATE_NOOP("OpenStreet::TileImage", "no picture"));
    if (!isWhole(bytes))
        return refuse(QT_TRANSLATE_NOOP("OpenStreet::TileImage", "the picture breaks off"));
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer, pFormat);
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > kMaxEdge || size.height() > kMaxEdge)
        return refuse(QT_TRANSLATE_NOOP("OpenStreet::TileImage", "not a picture of at most 1024 x 1024 pixels"));
    QImage image = reader.read();
    if (image.isNull())
        return refuse(QT_TRANSLATE_NOOP("OpenStreet::TileImage", "the picture is damaged"));
    if (image.width() > kKeptEdge || image.height() > kKeptEdge)
        image = image.scaled(kKeptEdge, kKeptEdge, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_RGBA8888_Premultiplied : QImage::Format_RGBX8888);
}

} // namespace OpenStreet
