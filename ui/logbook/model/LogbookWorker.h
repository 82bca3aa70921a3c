#pragma once

#include "store/LogbookEditor.h"
#include "store/LogbookReader.h"

#include <QThread>

#include <memory>

namespace ZARN {

/// Asks and changes a store in a thread of its own, one thing after the other: no window waits for a disk. What is wrong with the store is
/// told each time it is asked. What is asked for, and not yet answered when the worker goes, is never answered.
class LogbookWorker : public QObject {
    Q_OBJECT

public:
    explicit LogbookWorker(const QString& path, QObject* pParent = nullptr);
    ~LogbookWorker() override;

    [[nodiscard]] const QString& path() const { return mPath; }

    /// Does work(LogbookReader&) there, and then(its result) here; nothing of both where there is no store, or it cannot be read.
    template <typename Work, typename Then> void ask(Work work, Then then)
    {
        post([this, work, then] {
            LogbookReader* pReader = reader();
            if (!pReader)
                return;
            auto pResult = std::make_shared<decltype(work(*pReader))>(work(*pReader));
            if (check())
                QMetaObject::invokeMethod(this, [then, pResult] { then(std::move(*pResult)); }, Qt::QueuedConnection);
        });
    }
    /// Changes the store, which is made where there is none. @param then hears what failed; empty: nothing
    void edit(const std::function<void(LogbookEditor&)>& work, const std::function<void(const QString& error)>& then);
    /// Other work that the store has to wait for, and then what follows here.
    void run(const std::function<void()>& work, const std::function<void()>& then);
    /// Looks whether another program or thread has written; signalChanged says so.
    void look();

Q_SIGNALS:
    /// There is a store, or there is none (any more).
    void signalFound(bool isThere);
    /// Others have written, or the store was opened.
    void signalChanged();
    /// The store cannot be read, and why.
    void signalFailed(const QString& error);
    /// It was damaged, and is kept under another name, by what the error tells: what is shown from now on is of a new one.
    void signalPutAside(const QString& error);

private:
    void post(std::function<void()> work);
    // In the thread:
    LogbookReader* reader();
    /// Whether nothing failed; else says so.
    bool check();
    void rescue(const std::string& found);

    const QString mPath;
    std::unique_ptr<LogbookReader> mpReader; // of the thread
    int64_t mVersion = 0;                    // of the thread
    bool mWasRead = false;                   // of the thread
    QThread mThread;
    QObject* mpPlace; ///< in the thread
};

} // namespace ZARN
