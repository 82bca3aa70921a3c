#include "openstreet/core/FolderTiles.h"

#include "openstreet/core/TileImage.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace OpenStreet {

std::unique_ptr<LocalTiles> FolderTiles::open(const QString& path, QString& problem)
{
    std::unique_ptr<FolderTiles> pResult(new FolderTiles(path));
    if (pResult->findZooms())
        return pResult;
    problem = QCoreApplication::translate("OpenStreet::FolderTiles", "there is no folder of a zoom, from 0 to 22, with tiles in it");
    return nullptr;
}

bool FolderTiles::findZooms()
{
    mHighestZoom = -1;
    for (const QString& name : QDir(mPath).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        bool isNumber = false;
        const int zoom = name.toInt(&isNumber);
        if (isNumber && zoom >= 0 && zoom <= TileId::kMaxZoom && !QDir(mPath + QLatin1Char('/') + name).isEmpty())
            mHighestZoom = std::max(mHighestZoom, zoom);
    }
    return mHighestZoom >= 0;
}

std::optional<QByteArray> FolderTiles::read(const TileId& id)
{
    for (const char* pSuffix : {"png", "jpg", "jpeg", "webp"}) {
        QFile file(QString(QLatin1String("%1/%2/%3/%4.%5")).arg(mPath).arg(id.zoom).arg(id.x).arg(id.y).arg(QLatin1String(pSuffix)));
        if (QFileInfo(file).isFile() && file.size() <= TileImage::kMaxBytes && file.open(QIODevice::ReadOnly))
            return file.readAll();
    }
    return {};
}

} // namespace OpenStreet
