#pragma once

#include <QStandardPaths>
#include <QString>

namespace ZARN {

/// The folder in which map tiles are kept, with a trailing "/"; empty where the platform has no place for such things.
[[nodiscard]] inline QString tileFolder()
{
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    return cache.isEmpty() ? QString() : cache + QLatin1String("/tiles/");
}

/// Where earlier versions kept them.
[[nodiscard]] inline QString formerTileFolder(const QString& dataPath)
{
    return dataPath + QLatin1String("/tiles/");
}

} // namespace ZARN
