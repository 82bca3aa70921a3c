#include "ui/main/StatusProgress.h"

#include <QCoreApplication>
#include <QProgressBar>

namespace ZARN {

namespace {

constexpr qint64 kPaintingMilliseconds = 40; // often enough to look steady, too seldom to cost time

void paintWindows()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

void StatusProgress::begin()
{
    mBar.setValue(0);
    mBar.show();
    mRunning = true;
    mSincePainting.start();
    paintWindows();
}

void StatusProgress::setProgress(int percent)
{
    mBar.setValue(percent);
    if (!mRunning || mSincePainting.elapsed() < kPaintingMilliseconds)
        return;
    mSincePainting.start();
    paintWindows();
}

void StatusProgress::end()
{
    mRunning = false;
    mBar.hide();
}

} // namespace ZARN
