#pragma once

#include "card/record/RecordData.h"
#include "export/KmlSlots.h"
#include "export/ProgressSpan.h"
#include "profile/DecodingContext.h"

namespace ZARN {

class Console;

/// One point of the exported path, in degrees and metres; a coordinate that was never recorded stays at the marker.
struct KmlPoint {
    static constexpr double kMissing = -1000.0;
    int slot = 0;
    double latitude = kMissing;
    double longitude = kMissing;
    double altitude = kMissing;
};

/// The aircraft's positions, one a slot of the grid, from the three position channels that every installation has. Altitudes are
/// metres whatever the display shows, as the file format wants them.
class KmlPath {
public:
    static constexpr uint32_t kLatitudeIdentifier = 1036;
    static constexpr uint32_t kLongitudeIdentifier = 1037;
    static constexpr uint32_t kAltitudeIdentifier = 1038;

    /// Builds the points: in each slot the last sample, missing coordinates filled from the point before, at the start from the
    /// first that is known. Degrees next to 0 are those of a receiver without a fix: the slot stands, the coordinate counts as missing.
    /// Each position is told to a verbose console.
    /// @return false when the user cancels.
    bool build(const RecordData& data, const DecodingContext& context, const KmlGrid& grid, const Console& console, const ProgressSpan& progress);

    /// In ascending order of slots.
    [[nodiscard]] const std::vector<KmlPoint>& points() const { return mPoints; }
    /// Whether a latitude and a longitude are known.
    [[nodiscard]] bool hasPosition() const;
    /// The point of a slot; where it has none that of the next lower slot, else the first. Null when there is no point at all.
    [[nodiscard]] const KmlPoint* at(int slot) const;

private:
    void merge(const KmlSlots& slots, double KmlPoint::*coordinate);
    void fillForward();
    void fillBackward(const Console& console);

    std::vector<KmlPoint> mPoints;
};

} // namespace ZARN
