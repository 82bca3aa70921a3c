#include "export/ui/ExportTarget.h"

#include "app/FileName.h"
#include "export/RecordFileGuard.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

namespace ZARN {

bool ExportTarget::exists() const
{
    return QFileInfo::exists(path());
}

QString ExportTarget::recordProblem() const
{
    return isRecordFileOf(mCard, encodeFileName(path())) ? tr("%1 is a recording of this card and is not replaced.").arg(QDir::toNativeSeparators(path()))
                                                         : QString();
}

QString ExportTarget::problem() const
{
    const QFileInfo folder(mDirectory);
    const QFileInfo file(path());
    const QString shown = QDir::toNativeSeparators(mDirectory);
    if (!folder.exists())
        return tr("The folder %1 does not exist.").arg(shown);
    if (!folder.isDir())
        return tr("%1 is no folder.").arg(shown);
    if (mName.contains('/'))
        return tr("A file name cannot hold a \"/\".");
    if (file.isDir())
        return tr("%1 is a folder, not a file.").arg(QDir::toNativeSeparators(path()));
    if (const QString recording = recordProblem(); !recording.isEmpty())
        return recording;
    if (file.exists() && !file.isWritable())
        return tr("%1 cannot be written.").arg(QDir::toNativeSeparators(path()));
    if (file.exists() && !file.isFile()) // a pipe or a device: written directly
        return {};
    // Permissions tell half of it: media are read-only as a whole, networks have rules of their own.
    QTemporaryFile trial(mDirectory + "/.zarn-XXXXXX");
    return trial.open() ? QString() : tr("Nothing can be written to the folder %1: %2").arg(shown, trial.errorString());
}

} // namespace ZARN
