#include "ui/map/model/TileConsent.h"

#include "app/Property.h"
#include "app/Settings.h"

namespace ZARN {

namespace {

constexpr const char* kRefused = "no";

} // namespace

TileConsent::EAnswer TileConsent::answer(const QString& server) const
{
    const std::string stored = Settings::kMapTilesAllowed.get(mProperty);
    if (stored == kRefused)
        return eNo;
    return !stored.empty() && stored == server.toStdString() ? eYes : eNotAsked;
}

void TileConsent::set(const QString& server, bool isAllowed)
{
    Settings::kMapTilesAllowed.set(mProperty, isAllowed ? server.toStdString() : std::string(kRefused));
}

} // namespace ZARN
