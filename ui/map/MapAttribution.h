#pragma once

#include "openstreet/gl/OpenStreetMap.h"
#include "ui/canvas/Canvas.h"
#include "ui/map/model/MapStyle.h"

#include <QLabel>
#include <QStringList>

namespace ZARN {

/// Names the sources of what the map shows, each a link that the desktop opens: by the mouse, or by the keyboard with Tab and Return.
/// Stands in the right lower corner of its parent, in as many lines as it takes to be read whole.
class MapAttribution : public QLabel {
    Q_OBJECT

public:
    explicit MapAttribution(QWidget* pParent);

    /// @param own what the user wants to be told of the server's map; may be empty
    void setSources(const OpenStreet::MapSources& sources, const OpenStreet::OpenStreetMap& map, const QString& own);
    /// Keeps it in the corner.
    void place();
    /// The same in a picture: without links.
    void draw(Canvas& canvas, const MapStyle& style) const;

protected:
    void changeEvent(QEvent* pEvent) override;

private:
    /// The sources as links, in HTML.
    [[nodiscard]] static QString links(const OpenStreet::MapSources& sources, const OpenStreet::OpenStreetMap& map, const QString& own);
    [[nodiscard]] static QStringList serverLinks(const OpenStreet::TileServer& server, const QString& own);
};

} // namespace ZARN
