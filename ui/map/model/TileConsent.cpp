#include "ui/map/model/TileConsent.h"

#include "app/Property.h"

namespace ZARN {

namespace {

constexpr const char* kRefused = "no";

} // namespace

TileConsent::EAnswer TileConsent::answer(const QString& server) const
{
    const std::string stored = mProperty.getString(kKey, {});
    if (stored == kRefused)
        return eNo;
    return !stored.empty() && stored == server.toStdString() ? eYes : eNotAsked;
}

void TileConsent::set(const QString& server, bool isAllowed)
{
    mProperty.setString(kKey, isAllowed ? server.toStdString() : std::string(kRefused));
}

} // namespace ZARN
