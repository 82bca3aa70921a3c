#pragma once

#include <QDateTime>
#include <QString>

namespace ZARN {

/// Notices when the style file of the command line was written again.
class StyleWatch {
public:
    /// Empty path: there is none.
    explicit StyleWatch(const QString& file);

    /// Once after each change; the file as it stood at first is none.
    [[nodiscard]] bool takeChange();

    [[nodiscard]] const QString& file() const { return mFile; }

private:
    QString mFile;
    QDateTime mTime; ///< of the file as it was last seen
};

} // namespace ZARN
