#pragma once

#include "app/BackgroundTask.h"

#include <QPointer>
#include <QTimer>

class QProgressDialog;
class QWidget;

namespace ZARN {

/// Does an export on a thread of its own, one at a time, and shows how far it is, with a button to end it. Short work shows nothing; while
/// the window is there, everything else is out of the user's reach, until the work has really ended.
class ExportProgress : public QObject {
    Q_OBJECT

public:
    explicit ExportProgress(QWidget* pWindow);

    /// Begins the work; nothing else may be running.
    /// @param whenDone is called in the thread of the windows, whatever became of the work
    /// @param pAbove the window that it was asked for in, where that is not the one of the constructor
    void start(const QString& text, const BackgroundTask::Work& work, std::function<void()> whenDone, QWidget* pAbove = nullptr);
    [[nodiscard]] bool isRunning() const { return mTask.isRunning(); }
    [[nodiscard]] bool isCancelled() const { return mTask.isCancelled(); }
    /// The exception that ended the work, for people; empty when none did.
    [[nodiscard]] const QString& error() const { return mTask.error(); }

private:
    void cancel();
    void finish();

    QWidget* mpWindow;
    QPointer<QProgressDialog> mpDialog; // while the work runs
    std::function<void()> mWhenDone;
    QTimer mQuiet;
    BackgroundTask mTask; // the last member: the work has ended before others go
};

} // namespace ZARN
