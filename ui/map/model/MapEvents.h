#pragma once

#include "analysis/EventList.h"
#include "card/CycleNote.h"
#include "project/TimeReference.h"
#include "ui/map/model/MapPath.h"

#include <QColor>
#include <QString>

#include <vector>

namespace ZARN {

/// An event at the place where the aircraft was then.
struct MapEvent {
    double time = 0.0;
    QColor colour; ///< invalid: that of the map
    std::string text;
    std::string parameter; ///< whose samples made it
    OpenStreet::WorldPoint place; ///< relative to the path's origin
    bool isNote = false;
};

/// The events of the lists as dots on the path. Those that happened while there was no position have no dot.
class MapEvents {
public:
    static constexpr double kRadius = 5.0; ///< pixels
    static constexpr std::size_t kMostTips = 8;

    /// Forgets all events; their dots stay until the others are placed.
    void clear() { mAll.clear(); }
    /// Adds those of a list, with their colours.
    void add(const EventList& list);
    /// Takes these notes in place of those before; clear() leaves them.
    void setNotes(const std::vector<CycleNote>& notes);
    /// Puts the events on the path. @return whether their dots look otherwise
    bool place(const MapPath& path);

    [[nodiscard]] const std::vector<MapEvent>& dots() const { return mDots; }
    /// The events under a place of the window, the nearest first, at most kMostTips. Of those that lie upon each other, first the nearer to the
    /// view time.
    [[nodiscard]] std::vector<const MapEvent*> near(const MapPath& path, const OpenStreet::Camera& camera,
                                                    const OpenStreet::WindowPoint& point, double viewTime) const;
    /// Times and texts of events, one a line.
    [[nodiscard]] static QString text(const std::vector<const MapEvent*>& events, const TimeReference& times = {});

private:
    void placeAll(const std::vector<MapEvent>& events, const MapPath& path);

    std::vector<MapEvent> mAll;
    std::vector<MapEvent> mNotes;
    std::vector<MapEvent> mDots;
};

} // namespace ZARN
