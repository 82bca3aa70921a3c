#pragma once

namespace ZARN {

/// Receives the progress of a long operation of the core, in percent, and tells it when its user has had enough of it. The
/// main window shows it; programs without a window pass nullProgress(). Both are called in the thread of the operation.
class Progress {
public:
    virtual ~Progress() = default;
    virtual void setProgress(int percent) = 0;
    /// Whether the operation is to end as soon as it can, leaving no trace. Loading never asks, exports do.
    [[nodiscard]] virtual bool isCancelled() const { return false; }
};

/// A receiver that ignores every report.
Progress& nullProgress();

} // namespace ZARN
