#pragma once

#include "app/gui/DesktopScheme.h"

#include <QDateTime>
#include <QObject>
#include <QTimer>

namespace ZARN {

class Console;
class Kernel;
class Notices;

/// Keeps the program's look current while it runs: the style file of the command line when it is written again, and the system's palette
/// where that is followed. Tells what is wrong with either. Owned by the main window.
class StyleWatch : public QObject {
    Q_OBJECT

public:
    /// @param file of the command line; empty when there is none
    StyleWatch(const Console& console, Kernel& kernel, Notices& notices, const QString& file, QObject* pParent);

protected:
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private:
    void follow();
    void checkFile();
    void tellProblem();

    const Console& mConsole;
    Kernel& mKernel;
    Notices& mNotices;
    QString mFile;
    QDateTime mTime; ///< of the file as it was last seen
    QTimer mTimer;
    DesktopScheme mDesktop;
    QTimer mFollow; ///< one change of the system is told to each window
};

} // namespace ZARN
