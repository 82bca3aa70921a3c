#include "openstreet/core/PlaceIndex.h"

#include "openstreet/core/PackedReader.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace OpenStreet {

namespace {

constexpr int kNoHeading = 255;
constexpr int kMostTiles = 64;  // that a view may need of a layer: it shows a part of the world
constexpr int kLevelsBelow = 1; // a layer serves views from so many zooms above its tiles' on

void readAirfield(PackedReader& reader, MapPlace& place)
{
    place.kind = static_cast<MapPlace::EKind>(std::min<int>(reader.byte(), 3) + MapPlace::eLargeAirfield);
    place.elevation = reader.signedNumber();
    if (const int half = reader.byte(); half != kNoHeading)
        place.runwayHeading = half * 2 % 180;
    place.runwayLength = reader.number();
    place.ident = reader.text();
    place.name = reader.text();
}

void readTown(PackedReader& reader, MapPlace& place)
{
    if (const int size = reader.byte(); size > 0)
        place.inhabitants = std::exp2(size / 2.0);
    place.name = reader.text();
}

} // namespace

void PlaceIndex::open(const QString& folder)
{
    mProblem.clear();
    for (const auto& [pSource, name] : {std::pair(&mTowns, "places.bin"), std::pair(&mAirfields, "airfields.bin")}) {
        pSource->kept.clear();
        if (!pSource->file.open(folder + QLatin1String(name), pSource->kind))
            mProblem = pSource->file.problem();
    }
}

bool PlaceIndex::read(const QByteArray& bytes, DetailFile::EKind kind, const DetailFile::Layer& layer, const TileId& id, Places& places)
{
    PackedReader reader(bytes);
    const quint32 count = reader.count();
    const double edge = 1.0 / TileId::count(layer.zoom), unit = edge / (1 << layer.bits);
    for (quint32 i = 0; i < count && reader.isGood(); ++i) {
        MapPlace place;
        const double x = reader.number() * unit, y = reader.number() * unit;
        place.at = QPointF(id.x * edge + std::min(x, edge), id.y * edge + std::min(y, edge));
        if (kind == DetailFile::eAirfields)
            readAirfield(reader, place);
        else
            readTown(reader, place);
        if (reader.isGood())
            places.push_back(std::move(place));
    }
    return reader.isGood() && reader.isAtEnd();
}

const PlaceIndex::Places& PlaceIndex::tile(Source& source, const DetailFile::Layer& layer, const TileId& id)
{
    if (const Places* pKnown = source.kept.object(id))
        return *pKnown;
    auto* pPlaces = new Places;
    if (const std::optional<QByteArray> bytes = source.file.tile(layer, id); bytes && !read(*bytes, source.kind, layer, id, *pPlaces))
        mProblem = QCoreApplication::translate("OpenStreet::PlaceIndex", "The map of places is damaged: some are missing");
    source.kept.insert(id, pPlaces); // which owns it from here on
    return *pPlaces;
}

void PlaceIndex::add(Source& source, const QRectF& part, int zoom, std::size_t mostOfTile, std::vector<const MapPlace*>& result)
{
    const DetailFile::Layer* pLayer = nullptr;
    for (const DetailFile::Layer& layer : source.file.layers()) {
        if (!pLayer || layer.zoom + kLevelsBelow <= zoom)
            pLayer = &layer;
    }
    if (!pLayer)
        return;
    const int count = TileId::count(pLayer->zoom);
    const auto index = [count](double place) { return static_cast<int>(std::floor(std::clamp(place, -1.0, 2.0) * count)); };
    const int west = index(part.left()), east = index(part.right());
    const int top = std::max(index(part.top()), 0), bottom = std::min(index(part.bottom()), count - 1);
    if ((east - west + 1) * (bottom - top + 1) > kMostTiles)
        return;
    for (int y = top; y <= bottom; ++y) {
        for (int x = west; x <= east; ++x) {
            const QRectF here = part.translated(-std::floor(static_cast<double>(x) / count), 0.0); // in the world that the tile is of
            std::size_t left = mostOfTile;
            for (const MapPlace& place : tile(source, *pLayer, {pLayer->zoom, ((x % count) + count) % count, y})) {
                if (left > 0 && here.contains(place.at)) {
                    result.push_back(&place);
                    --left;
                }
            }
        }
    }
}

std::vector<const MapPlace*> PlaceIndex::in(const QRectF& part, int zoom, std::size_t mostOfTile)
{
    std::vector<const MapPlace*> result;
    add(mAirfields, part, zoom, mostOfTile, result);
    add(mTowns, part, zoom, mostOfTile, result);
    return result;
}

} // namespace OpenStreet
