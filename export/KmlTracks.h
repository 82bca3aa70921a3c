#pragma once

#include "export/PathTracks.h"
#include "export/ProgressSpan.h"
#include "export/XmlWriter.h"

namespace ZARN {

/// Writes tracks with times into a KML document, which viewers replay: a folder a flight.
class KmlTracks {
public:
    static constexpr const char* kNamespace = " xmlns:gx=\"http://www.google.com/kml/ext/2.2\"";
    static constexpr const char* kStyle = "flightTrack";

    /// @param stepSeconds from point to point
    KmlTracks(const PathTracks& path, int stepSeconds, XmlWriter& writer) : mPath(path), mStep(stepSeconds), mWriter(writer) {}

    void write(const PathTracks::Track& track);

private:
    void writeSegment(const std::string& name, std::span<const FlightPathPoint> points);
    [[nodiscard]] std::vector<FlightPathPoint> thinned(std::span<const FlightPathPoint> points) const;

    const PathTracks& mPath;
    double mStep;
    XmlWriter& mWriter;
};

} // namespace ZARN
