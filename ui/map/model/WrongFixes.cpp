#include "ui/map/model/WrongFixes.h"

#include "card/Geography.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

double distance(const FlightPathPoint& a, const FlightPathPoint& b)
{
    return calcDistance(a.latitude, a.longitude, b.latitude, b.longitude);
}

/// Whether it could be a jump; without the arithmetic of the sphere, since hardly any is.
bool isBeside(const FlightPathPoint& a, const FlightPathPoint& b)
{
    constexpr double kBeside = 0.004; // degrees: less than kNear in both directions together
    return std::fabs(a.latitude - b.latitude) < kBeside && std::fabs(a.longitude - b.longitude) < kBeside;
}

/// The first point behind a way out and back that begins behind `last`; 0 when there is none.
std::size_t comesBack(const std::vector<FlightPathPoint>& points, std::size_t first, const FlightPathPoint& last)
{
    for (std::size_t i = first + 1; i < points.size() && points[i].time - last.time <= WrongFixes::kLongest; ++i) {
        if (distance(points[i], last) < WrongFixes::kNear)
            return i;
    }
    return 0;
}

} // namespace

std::vector<FlightPathPoint> WrongFixes::takeFrom(std::vector<FlightPathPoint>& points)
{
    std::vector<FlightPathPoint> wrong, good;
    good.reserve(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        const bool isJump = !good.empty() && !isBeside(points[i], good.back()) && distance(points[i], good.back()) >= kNear;
        const std::size_t back = isJump ? comesBack(points, i, good.back()) : 0;
        const FlightPathPoint* pFarthest = &points[i];
        for (std::size_t k = i; k < back; ++k) {
            if (distance(points[k], good.back()) > distance(*pFarthest, good.back()))
                pFarthest = &points[k];
        }
        if (back > 0 && std::min(distance(*pFarthest, good.back()), distance(*pFarthest, points[back])) > kFar) {
            wrong.push_back(*pFarthest);
            i = back;
        }
        good.push_back(points[i]);
    }
    points = std::move(good);
    return wrong;
}

} // namespace ZARN
