#include "ui/main/StatusProgress.h"

#include <QCoreApplication>
#include <QProgressBar>

namespace ZARN {

namespace {

constexpr qint64 kPaintingMilliseconds = 40; // often enough to look steady, too seldom to cost time
constexpr qint64 kWorkForPainting = 4;       // where painting is slow, so many times its duration go to the work

} // namespace

void StatusProgress::paintWindows()
{
    mSincePainting.start();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    mPause = std::max(kPaintingMilliseconds, kWorkForPainting * mSincePainting.restart());
}

void StatusProgress::begin()
{
    mBar.setValue(0);
    mBar.show();
    mRunning = true;
    paintWindows();
}

void StatusProgress::setProgress(int percent)
{
    if (mRunning && mSincePainting.elapsed() < mPause)
        return; // the bar paints itself at once when it is given a value, and with it the whole window where that holds OpenGL
    mBar.setValue(percent);
    if (mRunning)
        paintWindows();
}

void StatusProgress::end()
{
    mRunning = false;
    mBar.hide();
}

} // namespace ZARN
