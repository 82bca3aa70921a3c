#pragma once

#include "ui/canvas/Canvas.h"
#include "ui/graph/model/CycleCourse.h"
#include "ui/map/model/MapPath.h"
#include "ui/map/model/MapStyle.h"

#include <QCoreApplication>

namespace ZARN {

/// Take-offs, landings and incidents on the path, each with its word where there is room: told by shape as well as by colour.
class MapMarks {
    Q_DECLARE_TR_FUNCTIONS(ZARN::MapMarks)

public:
    static constexpr std::size_t kMost = 300;

    /// Marks what happened while there was a place.
    void set(const CycleCourse& course, const MapPath& path);
    /// @param covers of the window: no words are put there
    void draw(Canvas& canvas, const OpenStreet::Camera& camera, const MapPath& path, const MapStyle& style,
              std::span<const QRectF> covers) const;
    /// What the mark under a place of the window tells; null elsewhere.
    [[nodiscard]] const CycleCourse::Mark* incidentAt(const MapPath& path, const OpenStreet::Camera& camera, const QPointF& place) const;
    [[nodiscard]] std::size_t size() const { return mMarks.size(); }

private:
    enum EShape { eTakeOff, eLanding, eWarning, eLimit };
    struct Mark {
        EShape shape = eTakeOff;
        QString text;
        OpenStreet::WorldPoint place = {}; ///< relative to the path's origin
        std::optional<CycleCourse::Mark> incident = {};
    };
    void add(const MapPath& path, double time, Mark mark);
    [[nodiscard]] static std::vector<QPointF> outline(EShape shape);
    [[nodiscard]] static QColor colour(EShape shape, const MapStyle& style);

    std::vector<Mark> mMarks;
};

} // namespace ZARN
