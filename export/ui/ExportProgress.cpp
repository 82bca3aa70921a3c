#include "export/ui/ExportProgress.h"

#include <QLabel>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>

#include <limits>
#include <utility>

namespace ZARN {

namespace {

constexpr int kQuietMilliseconds = 150;
constexpr int kWidth = 380;

} // namespace

ExportProgress::ExportProgress(QWidget* pWindow) : mpWindow(pWindow)
{
    mQuiet.setSingleShot(true);
    mQuiet.setInterval(kQuietMilliseconds);
    connect(&mTask, &BackgroundTask::signalFinished, this, &ExportProgress::finish);
}

void ExportProgress::start(const QString& text, const BackgroundTask::Work& work, std::function<void()> whenDone, QWidget* pAbove)
{
    mWhenDone = std::move(whenDone);
    mpDialog = new QProgressDialog(pAbove ? pAbove : mpWindow);
    mpDialog->setWindowTitle(tr("ZARN Info"));
    auto* pLabel = new QLabel(text);
    pLabel->setTextFormat(Qt::PlainText); // a file's name may hold what looks like markup
    mpDialog->setLabel(pLabel);
    auto* pBar = new QProgressBar; // told by itself: the dialog's own way to a value runs events
    mpDialog->setBar(pBar);
    mpDialog->setWindowModality(Qt::ApplicationModal);
    mpDialog->setMinimumDuration(std::numeric_limits<int>::max()); // shown from here
    mpDialog->setMinimumWidth(kWidth);
    disconnect(mpDialog, &QProgressDialog::canceled, mpDialog, &QProgressDialog::cancel); // which would hide it
    connect(mpDialog, &QProgressDialog::canceled, this, &ExportProgress::cancel);
    connect(&mTask, &BackgroundTask::signalProgress, pBar, &QProgressBar::setValue);
    connect(&mQuiet, &QTimer::timeout, mpDialog, &QWidget::show);
    mQuiet.start();
    mTask.start(work);
}

void ExportProgress::cancel()
{
    mTask.cancel();
    mpDialog->findChild<QPushButton*>()->setEnabled(false);
}

void ExportProgress::finish()
{
    mQuiet.stop();
    if (mpDialog) {
        mpDialog->hide();
        mpDialog->deleteLater();
    }
    mpDialog = nullptr;
    if (const auto whenDone = std::exchange(mWhenDone, nullptr))
        whenDone();
}

} // namespace ZARN
