#pragma once

#include "card/FlightPath.h"
#include "openstreet/core/Projection.h"

#include <QCoreApplication>
#include <QString>

namespace ZARN {

/// What is told of a place that is pointed at: where it is, and how far from the aircraft and in which direction, in kilometres and nautical miles.
class PointerText {
    Q_DECLARE_TR_FUNCTIONS(ZARN::PointerText)

public:
    /// @param pAircraft null: the place alone
    [[nodiscard]] static QString at(const OpenStreet::GeoPoint& place, const FlightPathPoint* pAircraft);
    /// A text that is as long as any.
    [[nodiscard]] static QString longest();
    /// The true direction in which the shortest way begins, in degrees from 0 to below 360.
    [[nodiscard]] static double bearing(const OpenStreet::GeoPoint& from, const OpenStreet::GeoPoint& to);
};

} // namespace ZARN
