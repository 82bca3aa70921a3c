#pragma once

#include "app/Progress.h"
#include "card/LoadedCard.h"

namespace ZARN {

class XmlWriter;
class SafeFile;

/// Writes the flight path of the loaded cycle or flight as a GPX 1.1 track, a point every half second. Altitudes are metres
/// whatever the units of the display are; the recorder's clock, which the satellites set, is taken as UTC, and a cycle without
/// one gives a track without times. Points that no track can hold are left out, and a new segment begins behind them.
class ExportGpx {
public:
    /// Opens the file, writes to it and commits it. @return false when it could not be written whole, or was cancelled; the old
    /// file, if any, is then untouched.
    bool exportData(const LoadedCard& loaded, SafeFile& file, Progress& progress = nullProgress());
    /// Why the last export failed: "NAME: reason"; empty after one that was cancelled.
    [[nodiscard]] const std::string& error() const { return mError; }

private:
    std::string mError;
};

} // namespace ZARN
