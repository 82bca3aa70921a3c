#include "vesk/gl/Strokes.h"

#include <QPolygonF>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace VESK::OpenGL;

namespace {

const VertexColour kRed{255, 0, 0, 255};

double distanceTo(const QPointF& point, const QPointF& from, const QPointF& to)
{
    const QPointF step = to - from;
    const double length = QPointF::dotProduct(step, step);
    const double along = length > 0.0 ? std::clamp(QPointF::dotProduct(point - from, step) / length, 0.0, 1.0) : 0.0;
    const QPointF away = point - (from + step * along);
    return std::hypot(away.x(), away.y());
}

double distanceTo(const QPointF& point, const std::vector<QPointF>& strip)
{
    double least = std::numeric_limits<double>::max();
    for (std::size_t i = 1; i < strip.size(); ++i)
        least = std::min(least, distanceTo(point, strip[i - 1], strip[i]));
    return least;
}

QPointF corner(const Vertex& vertex)
{
    return {static_cast<double>(vertex.x) - 0.5, static_cast<double>(vertex.y) - 0.5};
}

bool isInside(const QPointF& point, std::span<const Vertex> triangles)
{
    for (std::size_t i = 0; i < triangles.size(); i += 3) {
        const QPolygonF triangle{{corner(triangles[i]), corner(triangles[i + 1]), corner(triangles[i + 2])}};
        if (triangle.containsPoint(point, Qt::WindingFill))
            return true;
    }
    return false;
}

} // namespace

class TestStrokes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void coversTheStrip_data();
    void coversTheStrip();
    void gapsAndDashes();
};

void TestStrokes::coversTheStrip_data()
{
    QTest::addColumn<QPolygonF>("strip");
    QPolygonF circle;
    for (int i = 0; i <= 40; ++i)
        circle << QPointF(50 + 30 * std::cos(i * 0.157), 50 + 30 * std::sin(i * 0.157));
    QTest::newRow("flat corners") << QPolygonF{{{0, 50}, {30, 52}, {60, 40}, {90, 45}}};
    QTest::newRow("right angles") << QPolygonF{{{10, 10}, {50, 10}, {50, 50}, {90, 50}}};
    QTest::newRow("there and back") << QPolygonF{{{10, 10}, {80, 20}, {11, 12}, {80, 22}}};
    QTest::newRow("shorter than wide") << QPolygonF{{{50, 50}, {50.5, 50.2}, {50.6, 51}, {51.5, 51.2}, {51.5, 51.2}, {70, 60}}};
    QTest::newRow("circle") << circle;
}

void TestStrokes::coversTheStrip()
{
    QFETCH(const QPolygonF, strip);
    const std::vector<QPointF> points(strip.begin(), strip.end());
    for (const bool smooth : {false, true}) {
        for (const double ratio : {1.0, 2.0}) {
            Strokes strokes({Qt::red, 4.0, smooth, 0.0}, ratio);
            strokes.addStrip(points, std::span(&kRed, 1));
            for (double x = 0.25; x < 100.0; x += 0.5) {
                for (double y = 0.25; y < 100.0; y += 0.5) {
                    // Rounded corners have twelve edges, and those of flat turns stand out a little.
                    const double distance = distanceTo({x, y}, points);
                    const bool isEnd = std::min(distanceTo({x, y}, points.front(), points.front()),
                                                distanceTo({x, y}, points.back(), points.back())) < 2.0;
                    const bool isDrawn = isInside({x, y}, strokes.triangles());
                    if (distance < 1.85 && !isEnd)
                        QVERIFY2(isDrawn, qPrintable(QString("hole at %1, %2").arg(x).arg(y)));
                    if (distance > (smooth ? 2.95 : 2.35))
                        QVERIFY2(!isDrawn, qPrintable(QString("too wide at %1, %2").arg(x).arg(y)));
                }
            }
        }
    }
}

void TestStrokes::gapsAndDashes()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const std::vector<QPointF> points{{0, 10}, {20, 10}, {nan, 10}, {40, 10}, {60, 10}, {60, 30}};
    Strokes solid({Qt::red, 3.0, true, 0.0}, 1.0);
    solid.addStrip(points, std::span(&kRed, 1));
    QVERIFY(isInside({10, 10}, solid.triangles()) && isInside({50, 10}, solid.triangles()) && isInside({60, 20}, solid.triangles()));
    QVERIFY(!isInside({30, 10}, solid.triangles()));
    Strokes dashed({Qt::red, 3.0, false, 8.0}, 1.0);
    const std::vector<QPointF> bent{{0, 10}, {20, 10}, {20, 60}};
    dashed.addStrip(bent, std::span(&kRed, 1));
    QVERIFY(isInside({4, 10}, dashed.triangles()) && !isInside({12, 10}, dashed.triangles()));
    QVERIFY(isInside({20, 12}, dashed.triangles()) && !isInside({20, 18}, dashed.triangles())); // the dash from 16 to 24 turns the corner
    const std::vector<VertexColour> colours{kRed, {0, 0, 255, 255}};
    Strokes blended({Qt::red, 3.0, false, 0.0}, 1.0);
    blended.addStrip(std::span(bent).first(2), colours);
    for (const Vertex& vertex : blended.triangles())
        QCOMPARE(vertex.colour[2] == 255, corner(vertex).x() > 10.0);
}

QTEST_APPLESS_MAIN(TestStrokes)
#include "TestStrokes.moc"
