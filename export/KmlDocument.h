#pragma once

#include "analysis/EventList.h"
#include "export/KmlExportOptions.h"
#include "export/KmlPath.h"
#include "export/KmlPlacemarks.h"
#include "export/PathTracks.h"
#include "export/ProgressSpan.h"
#include "export/XmlWriter.h"

#include <QString>

namespace ZARN {

/// What a KML document tells of a cycle.
struct KmlContent {
    QString date; ///< of the cycle, as the document's name shows it; empty when the unit had no clock
    KmlPath path;
    KmlPlacemarks placemarks;
    EventList limits;
    EventList warnings;
    PathTracks tracks; ///< none unless they are wanted, and the unit had a clock
};

/// Writes a KML document: styles, placemarks, the path, and what tracks are wanted. Used once for one document.
class KmlDocument {
public:
    KmlDocument(KmlContent& content, const KmlExportOptions& options, XmlWriter& writer, const ProgressSpan& progress)
        : mContent(content), mOptions(options), mGrid(options.timeStamp), mWriter(writer), mProgress(progress)
    {
    }
    /// @return false when the user cancels.
    bool write();

private:
    void addData(const char* element, std::string_view text) { mWriter.text(element, text); }
    void writeStyle(const char* name, const std::string& colour);
    void countPieces();
    [[nodiscard]] bool isWanted(double seconds) const { return !mOptions.span || mOptions.span->holds(seconds); }
    bool step() { return mGoesOn = mProgress.step(mDone, mPieces); }
    void writeParameterPlacemarks();
    void writeEventPlacemarks(const EventList& list);
    void beginPlacemark(const std::string& title, double seconds, const char* style);
    void writeValue(const std::string& name, const std::string& value, const std::string& unit);
    void endPlacemark(const KmlPoint& point);
    void writeLineStyle();
    void writeTrackStyle();
    void writePath();
    void writeTracks();

    KmlContent& mContent;
    const KmlExportOptions& mOptions;
    KmlGrid mGrid;
    XmlWriter& mWriter;
    const ProgressSpan& mProgress;
    uint64_t mPieces = 0; // values, events and points, of which mDone are written
    uint64_t mDone = 0;
    bool mGoesOn = true; // no more once the user cancels
};

} // namespace ZARN
