#pragma once

#include "app/Progress.h"

#include <QCoreApplication>

#include <atomic>
#include <functional>
#include <thread>

namespace ZARN {

/// Runs work on a thread of its own while the window goes on, one piece at a time. Tells in the thread of its owner how far it is and
/// when it ended, by itself, by cancel() or by an exception. What the work refers to must stay until then; a task that is destroyed
/// cancels its work and waits for it, so that a class whose work refers to its members has the task as the last of them.
class BackgroundTask : public QObject {
    Q_OBJECT

public:
    using Work = std::function<void(Progress&)>;

    explicit BackgroundTask(QObject* pParent = nullptr);
    ~BackgroundTask() override;

    /// Begins the work; nothing else may be running. signalFinished comes later, whatever happens.
    void start(Work work);
    /// Until signalFinished is sent.
    [[nodiscard]] bool isRunning() const { return mIsRunning; }
    /// Tells the work to end as soon as it can.
    void cancel() { mReport.cancel(); }
    [[nodiscard]] bool isCancelled() const { return mReport.isCancelled(); }
    /// The exception that ended the work, for people; empty when none did.
    [[nodiscard]] const QString& error() const { return mError; }

Q_SIGNALS:
    /// From 0 to 100; only what differs from the last one.
    void signalProgress(int percent);
    void signalFinished();
    void signalEnded(QPrivateSignal); ///< in the thread of the work

private:
    /// What the work reports to, in its thread.
    class Report : public Progress {
    public:
        explicit Report(BackgroundTask& task) : mTask(task) {}

        void begin();
        void cancel() { mIsCancelled = true; }
        void setProgress(int percent) override;
        [[nodiscard]] bool isCancelled() const override { return mIsCancelled; }

    private:
        BackgroundTask& mTask;
        std::atomic<bool> mIsCancelled = false;
        int mPercent = -1;
    };
    void run(const Work& work);
    void finish();

    Report mReport{*this};
    QString mError;
    bool mIsRunning = false;
    std::thread mThread; // of the standard library, since the thread sanitizer sees what it waits for
};

} // namespace ZARN
