#pragma once

#include "analysis/EventList.h"
#include "export/KmlExportOptions.h"
#include "export/KmlPath.h"
#include "export/KmlPlacemarks.h"
#include "export/KmlWriter.h"

#include <QString>

namespace ZARN {

/// What a KML document tells of a cycle.
struct KmlContent {
    QString date; ///< of the cycle, as the document's name shows it; empty when the unit had no clock
    KmlPath path;
    KmlPlacemarks placemarks;
    EventList limits;
    EventList warnings;
};

/// Writes a KML document: styles, placemarks, and the path last. Used once for one document.
class KmlDocument {
public:
    KmlDocument(KmlContent& content, const KmlExportOptions& options, KmlWriter& writer)
        : mContent(content), mOptions(options), mGrid(options.timeStamp), mWriter(writer)
    {
    }
    void write();

private:
    void addData(const char* element, std::string_view text) { mWriter.text(element, text); }
    void writeStyle(const char* name, const std::string& colour);
    void writeParameterPlacemarks();
    void writeEventPlacemarks(const EventList& list);
    void beginPlacemark(const std::string& title, const char* style);
    void writeValue(const std::string& name, const std::string& value, const std::string& unit);
    void endPlacemark(const KmlPoint& point);
    void writePath();

    KmlContent& mContent;
    const KmlExportOptions& mOptions;
    KmlGrid mGrid;
    KmlWriter& mWriter;
};

} // namespace ZARN
