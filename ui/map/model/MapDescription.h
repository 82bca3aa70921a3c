#pragma once

#include "ui/map/model/MapScene.h"

#include <QCoreApplication>

namespace ZARN {

/// What the map shows of a flight, in words: its path, and where the aircraft is.
class MapDescription {
    Q_DECLARE_TR_FUNCTIONS(ZARN::MapDescription)

public:
    explicit MapDescription(const MapScene& scene) : mScene(scene) {}
    [[nodiscard]] QString text() const;

private:
    const MapScene& mScene;
};

} // namespace ZARN
