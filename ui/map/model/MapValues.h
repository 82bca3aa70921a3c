#pragma once

#include "project/Session.h"

#include <QColor>
#include <QString>

#include <vector>

namespace ZARN {

struct ProfileParameter;

/// A line of the values beside the map.
struct MapValue {
    QString name;
    QString text;  ///< as tables show it; "-" where nothing was recorded for the time
    QString unit;  ///< of what was recorded; empty for none
    QColor colour; ///< of its threshold; invalid when there is none
    int state = 0; ///< of its threshold: 1 warning, 2 limit
    friend bool operator==(const MapValue&, const MapValue&) = default;
};

/// The values that stand beside the map: those of the parameters that are shown, in the profile's order.
class MapValues {
public:
    static constexpr std::size_t kMostRows = 1000;

    explicit MapValues(const Session& session) : mSession(session) {}

    /// The lines at a time in seconds. @param hasRecord false: names alone.
    [[nodiscard]] std::vector<MapValue> at(double time, bool hasRecord) const;

private:
    void fill(MapValue& row, const ProfileParameter& parameter, double time) const;

    Session mSession;
};

} // namespace ZARN
