#pragma once

namespace ZARN {

/// Great-circle distance in metres between two positions in degrees, at 60 nautical miles a degree of arc. Not a number
/// where rounding carries the cosine of the arc past 1.
[[nodiscard]] double calcDistance(double lat1, double lon1, double lat2, double lon2);

} // namespace ZARN
