#include "openstreet/core/LocalTiles.h"

#include "openstreet/core/FolderTiles.h"
#include "openstreet/core/MbTiles.h"

#include <QDir>
#include <QFileInfo>

namespace OpenStreet {

LocalTiles::LocalTiles(QString path) : mPath(std::move(path)), mName(QFileInfo(mPath).fileName()) {}

std::unique_ptr<LocalTiles> LocalTiles::open(const QString& path, QString* pProblem)
{
    QString problem;
    std::unique_ptr<LocalTiles> pResult;
    if (QFileInfo(path).isDir())
        pResult = FolderTiles::open(path, problem);
    else
        pResult = MbTiles::open(path, problem);
    if (!pResult && pProblem)
        *pProblem = QString(QLatin1String("%1: %2")).arg(QDir::toNativeSeparators(path), problem);
    return pResult;
}

} // namespace OpenStreet
