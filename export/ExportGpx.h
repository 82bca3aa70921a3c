#pragma once

#include "app/Progress.h"
#include "card/LoadedCard.h"

namespace ZARN {

class XmlWriter;
class SafeFile;

/// Writes the flight path of the loaded cycle or flight as GPX 1.1, one track or one a flight, a point every half second. Altitudes are metres
/// whatever the units of the display are, and left out where none were recorded; the recorder's clock, which the satellites set, is taken
/// as UTC, and a cycle without one gives tracks without times. Points that no track can hold are left out, and a new segment begins behind them.
class ExportGpx {
public:
    enum ETracks {
        eOneTrack,      ///< of everything that is loaded
        eTrackPerFlight ///< of each flight alone, when no single one is loaded; without any flight one of everything
    };

    /// Opens the file, writes to it and commits it. @return false when it could not be written whole, or was cancelled; the old
    /// file, if any, is then untouched.
    bool exportData(const LoadedCard& loaded, SafeFile& file, ETracks tracks = eOneTrack, Progress& progress = nullProgress());
    /// Why the last export failed: "NAME: reason"; empty after one that was cancelled.
    [[nodiscard]] const std::string& error() const { return mError; }

private:
    std::string mError;
};

} // namespace ZARN
