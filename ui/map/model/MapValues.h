#pragma once

#include "project/Session.h"

#include <QColor>
#include <QString>

#include <vector>

namespace ZARN {

/// A line of the value panel.
struct MapValue {
    QString name;
    QString text;  ///< the value with its unit
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
    Session mSession;
};

} // namespace ZARN
