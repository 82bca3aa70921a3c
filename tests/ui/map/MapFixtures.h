#pragma once

#include "ui/map/model/MapPath.h"

#include <QLineF>

namespace ZARN::Test {

inline FlightPathPoint at(double time, double latitude, double longitude)
{
    return {time, latitude, longitude, 100.0 * time, 10.0 * time, 0.0};
}

/// 800 x 600 pixels, so many metres across, around 48.2 N 11.0 E.
inline OpenStreet::Camera camera(double range = 20000.0, int width = 800, int height = 600)
{
    OpenStreet::Camera result;
    result.setWindowSize(width, height);
    result.setPosition({48.2, 11.0});
    result.setVisibleRange(range, 0.0);
    return result;
}

inline QPointF seen(const OpenStreet::Camera& view, double latitude, double longitude)
{
    const OpenStreet::WindowPoint point = view.geoToWindow({latitude, longitude});
    return {point.x, point.y};
}

inline bool isNear(const QPointF& a, const QPointF& b, double most)
{
    return QLineF(a, b).length() <= most;
}

/// Points a second apart along a parallel, 400 of them from 10.9 to 11.1 degrees east.
inline std::vector<FlightPathPoint> eastwards()
{
    std::vector<FlightPathPoint> points;
    for (int i = 0; i <= 400; ++i)
        points.push_back(at(i, 48.2, 10.9 + i * 0.0005));
    return points;
}

} // namespace ZARN::Test
