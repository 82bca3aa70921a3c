#pragma once

#include "project/Session.h"

#include <QColor>
#include <QString>

#include <vector>

namespace ZARN {

struct ProfileParameter;

/// A line of the value panel.
struct MapValue {
    QString name;
    QString text;  ///< as tables show it, with the unit; "-" where nothing was recorded for the time
    QColor colour; ///< of its threshold; invalid when there is none
};

/// The values that the panel on the map shows: those of the parameters that are shown, in the profile's order.
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
