#include "bench/BenchApplication.h"
#include "openstreet/gl/OpenStreetMap.h"
#include "ui/gl/GlCanvas.h"
#include "ui/map/model/MapScene.h"

#include <benchmark/benchmark.h>

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>

#include <array>
#include <cmath>
#include <optional>

namespace ZARN {

namespace {

constexpr int kPoints = 200000;
constexpr QSize kWindow(2048, 1280);
constexpr double kRange = 55000.0; // metres, at which that window shows 60 tiles and more

/// A context that draws into memory, with a map and a path of a day and more. Needs a display.
struct MapBench {
    MapBench()
    {
        QSurfaceFormat format;
        format.setVersion(3, 3);
        format.setProfile(QSurfaceFormat::CoreProfile);
        surface.setFormat(format);
        surface.create();
        context.setFormat(format);
        isReady = context.create() && context.makeCurrent(&surface);
        if (!isReady)
            return;
        target.emplace(kWindow);
        canvas.emplace();
        isReady = canvas->init();
        isReady = isReady && map.loadBaseMap();
        camera.setWindowSize(kWindow.width(), kWindow.height());
        camera.setPosition({48.2, 11.05});
        camera.setVisibleRange(kRange, 0.0);
        std::vector<FlightPathPoint> points;
        for (int i = 0; i < kPoints; ++i) // circles that drift, as in thermals
            points.push_back({i * 0.5, 48.2 + 0.08 * std::sin(i * 2e-4) + 0.01 * std::sin(i * 0.02),
                              11.05 + 0.12 * std::cos(i * 1.3e-4) + 0.015 * std::cos(i * 0.02), 0, 0, 0});
        path.path().setPoints(points);
        coloured.path().setPoints(points);
        coloured.setTint(altitudes());
    }
    /// As of climbs and descents of a few minutes.
    static PathTint altitudes()
    {
        PathTint tint;
        tint.isScale = true;
        for (int i = 0; i <= PathTint::kSteps; ++i)
            tint.colours.push_back(QColor::fromHsvF(0.7F * static_cast<float>(i) / PathTint::kSteps, 1.0F, 0.8F));
        for (int i = 0; i < kPoints; ++i)
            tint.steps.push_back(static_cast<quint8>(std::lround((PathTint::kSteps - 1) * (0.5 + 0.5 * std::sin(i * 0.01)))));
        return tint;
    }
    static MapBench& instance()
    {
        startApplication();
        static MapBench bench;
        return bench;
    }
    /// One frame, waited for.
    void frame(MapScene& scene, double moved)
    {
        camera.setWorld({camera.projection().toWorld(camera.position()).x + moved * camera.metresPerPixel(),
                         camera.projection().toWorld(camera.position()).y},
                        camera.metresPerPixel());
        target->bind();
        canvas->begin(kWindow, 1.0, Qt::white);
        map.setCamera(camera);
        map.render(canvas->device());
        scene.update(camera);
        scene.drawGround(*canvas, camera);
        scene.drawAbove(*canvas, camera);
        canvas->end();
        context.functions()->glFinish();
    }

    QOffscreenSurface surface;
    QOpenGLContext context;
    std::optional<QOpenGLFramebufferObject> target;
    std::optional<GlCanvas> canvas;
    OpenStreet::OpenStreetMap map;
    OpenStreet::Camera camera;
    MapScene path;
    MapScene coloured;
    MapScene empty;
    bool isReady = false;
};

void mapFrame(benchmark::State& state)
{
    MapBench& bench = MapBench::instance();
    if (!bench.isReady)
        return state.SkipWithError("no OpenGL: run it under a display");
    MapScene& scene = *std::array{&bench.empty, &bench.path, &bench.coloured}[static_cast<std::size_t>(state.range(0))];
    do {
        bench.frame(scene, 0.0);
        QCoreApplication::processEvents(); // tiles are looked for on the disk between frames
    } while (bench.map.nrLoadingTiles() != 0);
    double step = 3.0;
    for (auto _ : state) {
        step = -step; // a pan that stays over the same tiles
        bench.frame(scene, step);
    }
    state.counters["tiles"] = static_cast<double>(OpenStreet::TileCover(bench.camera, 1.0, 19).view().size());
    state.counters["vertices"] = static_cast<double>(scene.geometry().vertexCount());
}

void pathBuild(benchmark::State& state)
{
    MapBench& bench = MapBench::instance();
    double range = kRange;
    OpenStreet::Camera camera = bench.camera;
    PathGeometry geometry;
    for (auto _ : state) {
        range = range < kRange ? kRange : 0.5 * kRange;
        camera.setVisibleRange(range, 0.0);
        geometry.update(bench.path.path(), camera);
    }
}

void builtInTile(benchmark::State& state)
{
    OpenStreet::BaseMap map;
    if (!map.loadBuiltIn())
        return state.SkipWithError("no map of the world");
    int column = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(map.tile({12, 2100 + column++ % 256, 1400}));
}

BENCHMARK(mapFrame)->Name("map/frame")->Arg(0)->Arg(1)->Arg(2)->MeasureProcessCPUTime()->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(pathBuild)->Name("map/path/zoom")->Unit(benchmark::kMillisecond);
BENCHMARK(builtInTile)->Name("map/tile")->Unit(benchmark::kMillisecond);

} // namespace

} // namespace ZARN
