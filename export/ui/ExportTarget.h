#pragma once

#include <QCoreApplication>

namespace ZARN {

/// The file that an export is going to write, before the work begins.
class ExportTarget {
    Q_DECLARE_TR_FUNCTIONS(ZARN::ExportTarget)

public:
    ExportTarget(const QString& directory, const QString& name) : mDirectory(directory), mName(name) {}

    [[nodiscard]] QString path() const { return mDirectory + "/" + mName; }
    [[nodiscard]] bool exists() const;
    /// What keeps the file from being written, for people; empty when nothing does. Tries it with a file of another name.
    [[nodiscard]] QString problem() const;

private:
    QString mDirectory;
    QString mName;
};

} // namespace ZARN
