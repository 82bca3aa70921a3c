#include "openstreet/core/Terrain.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <limits>

namespace OpenStreet {

namespace {

constexpr std::int16_t kVoid = -32768;

} // namespace

double Terrain::Square::at(int row, int column) const
{
    const std::int16_t height = heights[static_cast<std::size_t>(row) * static_cast<std::size_t>(edge) + static_cast<std::size_t>(column)];
    return height == kVoid ? std::numeric_limits<double>::quiet_NaN() : static_cast<double>(height);
}

void Terrain::setFolder(const QString& folder)
{
    static const QRegularExpression name(QLatin1String("^([NS])(\\d{2})([EW])(\\d{3})\\.hgt$"));
    mFolder = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    mFiles.clear();
    mSquares.clear();
    const QStringList names = QDir(mFolder).entryList({QString(QLatin1String("*.hgt"))}, QDir::Files);
    for (const QString& file : names) {
        const QRegularExpressionMatch match = name.match(file);
        if (!match.hasMatch())
            continue;
        const int latitude = match.captured(2).toInt() * (match.captured(1) == QLatin1String("S") ? -1 : 1);
        const int longitude = match.captured(4).toInt() * (match.captured(3) == QLatin1String("W") ? -1 : 1);
        mFiles.insert({latitude, longitude});
    }
}

QString Terrain::fileName(const Corner& corner)
{
    return QString(QLatin1String("%1%2%3%4.hgt"))
        .arg(QLatin1Char(corner.first < 0 ? 'S' : 'N'))
        .arg(std::abs(corner.first), 2, 10, QLatin1Char('0'))
        .arg(QLatin1Char(corner.second < 0 ? 'W' : 'E'))
        .arg(std::abs(corner.second), 3, 10, QLatin1Char('0'));
}

bool Terrain::covers(double south, double west, double north, double east) const
{
    return std::any_of(mFiles.begin(), mFiles.end(), [=](const Corner& corner) {
        return corner.first < north && corner.first + 1 > south && corner.second < east && corner.second + 1 > west;
    });
}

std::unique_ptr<Terrain::Square> Terrain::load(const Corner& corner) const
{
    auto pResult = std::make_unique<Square>();
    QFile file(mFolder + fileName(corner));
    if (!file.open(QIODevice::ReadOnly))
        return pResult;
    for (const int edge : {1201, 3601}) {
        const qint64 bytes = 2LL * edge * edge;
        if (file.size() != bytes)
            continue;
        pResult->heights.resize(static_cast<std::size_t>(edge) * static_cast<std::size_t>(edge));
        if (file.read(reinterpret_cast<char*>(pResult->heights.data()), bytes) == bytes)
            pResult->edge = edge;
    }
    std::vector<std::int16_t>& heights = pResult->heights;
    if (pResult->edge == 0)
        heights.clear();
    qFromBigEndian<std::int16_t>(heights.data(), static_cast<qsizetype>(heights.size()), heights.data());
    return pResult;
}

const Terrain::Square* Terrain::square(const Corner& corner)
{
    const Square* pSquare = mSquares.object(corner);
    if (!pSquare && mFiles.contains(corner)) {
        mSquares.insert(corner, load(corner).release());
        pSquare = mSquares.object(corner);
    }
    return pSquare && pSquare->edge > 0 ? pSquare : nullptr;
}

std::optional<double> Terrain::height(const GeoPoint& place)
{
    const double longitude = foldLongitude(place.longitude);
    if (!(place.latitude > -90.0 && place.latitude < 90.0))
        return {};
    const Corner corner{static_cast<int>(std::floor(place.latitude)), static_cast<int>(std::floor(longitude))};
    const Square* pSquare = square(corner);
    if (!pSquare)
        return {};
    const int last = pSquare->edge - 1;
    const double row = (corner.first + 1 - place.latitude) * last;
    const double column = (longitude - corner.second) * last;
    const int top = std::clamp(static_cast<int>(row), 0, last - 1);
    const int left = std::clamp(static_cast<int>(column), 0, last - 1);
    const double down = row - top;
    const double right = column - left;
    const double upper = pSquare->at(top, left) * (1.0 - right) + pSquare->at(top, left + 1) * right;
    const double lower = pSquare->at(top + 1, left) * (1.0 - right) + pSquare->at(top + 1, left + 1) * right;
    const double result = upper * (1.0 - down) + lower * down;
    return std::isnan(result) ? std::nullopt : std::optional(result);
}

} // namespace OpenStreet
