#include "export/ui/ExportProgress.h"

#include <QCoreApplication>
#include <QLabel>

#include <limits>

namespace ZARN {

namespace {

constexpr qint64 kQuietMilliseconds = 150;
constexpr qint64 kPaintingMilliseconds = 40; // often enough to look steady, too seldom to cost time
constexpr int kWidth = 380;

} // namespace

ExportProgress::ExportProgress(const QString& text, QWidget* pWindow) : mDialog(pWindow)
{
    mDialog.setWindowTitle(tr("ZARN Info"));
    auto* pLabel = new QLabel(text);
    pLabel->setTextFormat(Qt::PlainText); // a file's name may hold what looks like markup
    mDialog.setLabel(pLabel);
    mDialog.setWindowModality(Qt::ApplicationModal);
    mDialog.setMinimumDuration(std::numeric_limits<int>::max()); // shown from here
    mDialog.setAutoReset(false);
    mDialog.setAutoClose(false);
    mDialog.setMinimumWidth(kWidth);
    mSinceBegin.start();
    mSincePainting.start();
}

void ExportProgress::setProgress(int percent)
{
    if (mSincePainting.elapsed() < kPaintingMilliseconds || mSinceBegin.elapsed() < kQuietMilliseconds || isCancelled())
        return;
    mDialog.show();
    mDialog.setValue(percent);
    QCoreApplication::processEvents();
    mSincePainting.start();
}

} // namespace ZARN
