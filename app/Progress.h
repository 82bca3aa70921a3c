#pragma once

namespace ZARN {

/// Receives the progress of a long operation of the core, in percent. The main window shows it; programs without a
/// window pass nullProgress().
class Progress {
public:
    virtual ~Progress() = default;
    virtual void setProgress(int percent) = 0;
};

/// A receiver that ignores every report.
Progress& nullProgress();

} // namespace ZARN
