#pragma once

#include "openstreet/core/Camera.h"
#include "openstreet/core/PlaceIndex.h"
#include "ui/canvas/Canvas.h"
#include "ui/map/model/MapStyle.h"

namespace ZARN {

/// The names of towns and airfields on the built-in map: the ones that matter most at the scale of the view, none upon another. Chosen anew
/// when the scale changes or the view has left what they were chosen for; a pan in between costs a translation.
class PlaceLabels {
public:
    static constexpr std::size_t kMost = 160;

    /// Looks for the files of places. @param folder with a trailing "/"
    void open(const QString& folder);
    [[nodiscard]] const QString& problem() const { return mPlaces.problem(); }
    void update(const OpenStreet::Camera& camera, const MapStyle& style);
    void draw(Canvas& canvas, const OpenStreet::Camera& camera, const MapStyle& style) const;
    /// Whether a name stands in a part of the window.
    [[nodiscard]] bool areIn(const QRectF& part, const OpenStreet::Camera& camera) const;
    /// The places whose symbol is seen.
    [[nodiscard]] std::size_t size() const { return mLabels.size(); }
    [[nodiscard]] int choices() const { return mChoices; }

private:
    struct Label {
        OpenStreet::MapPlace place;
        OpenStreet::WorldPoint at;
        QPointF step; ///< from the place's point to the left upper corner of its text
        QSizeF size;
        QString text; ///< empty where there is no room for it
    };
    void choose(const OpenStreet::Camera& camera, const MapStyle& style);
    [[nodiscard]] static double weight(const OpenStreet::MapPlace& place);
    [[nodiscard]] static QString textOf(const OpenStreet::MapPlace& place, int zoom);
    void drawAirfield(Canvas& canvas, const QPointF& at, const OpenStreet::MapPlace& place, const MapStyle& style) const;

    OpenStreet::PlaceIndex mPlaces;
    std::vector<Label> mLabels;
    OpenStreet::Camera mCamera; // for which they were chosen
    double mTextSize = 0.0;
    int mChoices = 0;
};

} // namespace ZARN
