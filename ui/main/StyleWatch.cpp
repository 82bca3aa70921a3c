#include "ui/main/StyleWatch.h"

#include "app/Console.h"
#include "app/gui/Kernel.h"
#include "ui/main/Notices.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFileInfo>

#include <utility>

namespace ZARN {

namespace {

constexpr int kPeriod = 500; // milliseconds from look to look at the style file

} // namespace

StyleWatch::StyleWatch(const Console& console, Kernel& kernel, Notices& notices, const QString& file, QObject* pParent)
    : QObject(pParent), mConsole(console), mKernel(kernel), mNotices(notices), mFile(file), mTime(QFileInfo(file).lastModified())
{
    tellProblem();
    mFollow.setSingleShot(true);
    connect(&mFollow, &QTimer::timeout, this, [this] { mKernel.applyPalette(); });
    QCoreApplication::instance()->installEventFilter(this);
    connect(&mDesktop, &DesktopScheme::signalChanged, this, &StyleWatch::follow);
    if (mFile.isEmpty())
        return;
    mTimer.setParent(this);
    connect(&mTimer, &QTimer::timeout, this, &StyleWatch::checkFile);
    mTimer.start(kPeriod);
}

void StyleWatch::checkFile()
{
    const QDateTime before = std::exchange(mTime, QFileInfo(mFile).lastModified());
    if (mTime == before)
        return;
    mConsole.print("Slot Load Style <%s>\n", mFile.toUtf8().constData());
    mKernel.loadStyleFile(mFile);
    tellProblem();
}

void StyleWatch::tellProblem()
{
    const QString problem = mKernel.styleProblem();
    const QString file = QFileInfo(problem.section('\n', 0, 0)).fileName();
    const QString what = mKernel.isStyleMissing() ? tr("Style not found: the windows have none") : tr("Style damaged: the built-in one is in force");
    const QString text = what + "; " + file + ": " + problem.section('\n', 1).simplified();
    mNotices.setProblem(Notices::eStyle, problem.isEmpty() ? QString() : text, problem);
}

bool StyleWatch::eventFilter(QObject* pObject, QEvent* pEvent)
{
    const bool isNews = pEvent->type() == QEvent::ThemeChange || pEvent->type() == QEvent::ApplicationPaletteChange;
    if (isNews)
        follow();
    return QObject::eventFilter(pObject, pEvent);
}

void StyleWatch::follow()
{
    if (mKernel.followsSystem())
        mFollow.start(); // later: the toolkit is in the midst of its change
}

} // namespace ZARN
