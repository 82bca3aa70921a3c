#pragma once

#include "export/KmlDocument.h"

#include <QDateTime>

namespace ZARN {

class Console;
class SafeFile;

/// Writes the flight path of the loaded cycle as a KML document for a globe viewer, with placemarks of the selected parameters,
/// of limit exceedances and of warning lamps. The document is written as it is made: no tree of it is held.
class ExportKml {
public:
    /// @param cycleDate date and time of the loaded cycle, for the document's name; may be invalid.
    /// @param selection the parameters that placemarks of values show
    ExportKml(const Console& console, DecodingContext context, Selection selection, const QDateTime& cycleDate);

    /// What tracks with times are made of, if the options want them.
    void setTracksOf(const LoadedCard& loaded) { mTracked = loaded; }

    /// Writes directory/fileName of the options. @return false, with the old file, if any, untouched, when it could not be written,
    /// which a console line tells, or was cancelled.
    bool exportData(const RecordData& recordData, const KmlExportOptions& options, Progress& progress = nullProgress());
    /// The same into a file that the caller chose; opens and commits it.
    bool exportData(const RecordData& recordData, const KmlExportOptions& options, SafeFile& file, Progress& progress = nullProgress());

    // The steps of exportData().
    bool exportPlaceMarks(const RecordData& recordData, const KmlExportOptions& options, Progress& progress = nullProgress());
    bool exportErrors(const RecordData& recordData, const KmlExportOptions& options, Progress& progress = nullProgress());
    bool exportFile(const KmlExportOptions& options, Progress& progress = nullProgress());
    bool exportFile(const KmlExportOptions& options, SafeFile& file, Progress& progress = nullProgress());

    /// Whether the last document has a path: without one there is little to see in it.
    [[nodiscard]] bool hasPosition() const { return mContent.path.hasPosition(); }
    /// Whether the last document has tracks with times.
    [[nodiscard]] bool hasTracks() const { return !mContent.tracks.tracks().empty(); }
    /// Why the last export failed: "NAME: reason"; empty after one that was cancelled.
    [[nodiscard]] const std::string& error() const { return mError; }

private:
    bool collect(const RecordData& recordData, const KmlExportOptions& options, Progress& progress);

    const Console& mConsole;
    const DecodingContext mContext;
    const Selection mSelection;
    std::optional<LoadedCard> mTracked;
    KmlContent mContent;
    std::string mError;
};

} // namespace ZARN
