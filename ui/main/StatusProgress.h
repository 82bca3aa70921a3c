#pragma once

#include "app/Progress.h"

#include <QElapsedTimer>

class QProgressBar;

namespace ZARN {

/// Shows the progress of loading in a bar and keeps the windows painted meanwhile. Input of the user waits until the work is
/// done; timers run, so that whoever is started by one must not begin another load in the midst of the first.
class StatusProgress : public Progress {
public:
    explicit StatusProgress(QProgressBar& bar) : mBar(bar) {}

    /// Shows the bar, empty.
    void begin();
    void setProgress(int percent) override;
    void end();

private:
    void paintWindows();

    QProgressBar& mBar;
    QElapsedTimer mSincePainting;
    qint64 mPause = 0; ///< milliseconds from one painting to the next
    bool mRunning = false;
};

} // namespace ZARN
