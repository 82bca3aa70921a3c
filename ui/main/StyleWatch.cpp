#include "ui/main/StyleWatch.h"

#include <QFileInfo>

#include <utility>

namespace ZARN {

StyleWatch::StyleWatch(const QString& file) : mFile(file), mTime(QFileInfo(file).lastModified()) {}

bool StyleWatch::takeChange()
{
    if (mFile.isEmpty())
        return false;
    const QDateTime before = std::exchange(mTime, QFileInfo(mFile).lastModified());
    return mTime != before;
}

} // namespace ZARN
