#include "Suites.h"

#include "support/PlainMap.h"
#include "ui/map/RegionPictures.h"

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace orvinel::bench {

namespace {

// A region's picture with two sets of markers: everything, and what a search leaves of the skills.
struct Case {
    explicit Case(World& world)
        : zones(world.state(), art), shown(world.map().shown(0)),
          picture(loadPicture(world.disk(), world.picture(world.campaign(), world.region()))),
          sets{allMarkers(world.state(), shown), allMarkers(world.state(), shown, u"ar"_s)},
          visible(world.map().picMap().view().visible()) {}

    MapSurface surface() {
        QImage ground = picture.copy();
        zones.drawGround(ground, ground.rect(), shown);
        return MapSurface(std::move(ground), art);
    }

    MarkerArt art;
    ZonesView zones;
    MapShown shown;
    QImage picture;
    std::array<std::vector<Marker>, 2> sets;
    QRect visible;
};

void recompose(benchmark::State& run, Case& with, bool whole) {
    MapSurface surface = with.surface();
    const QRect area = whole ? QRect(QPoint(), surface.size()) : with.visible;
    size_t next = 0;
    for (auto _ : run) {
        surface.setMarkers(with.sets[next]);
        benchmark::DoNotOptimize(surface.composed(area));
        next = 1 - next;
    }
}

void recomposePlainly(benchmark::State& run, Case& with) {
    size_t next = 0;
    for (auto _ : run) {
        benchmark::DoNotOptimize(plainMap(with.picture, with.zones, with.shown, with.sets[next], with.art));
        next = 1 - next;
    }
}

void copyVisible(benchmark::State& run, const Case& with) {
    QImage target(with.visible.size(), QImage::Format_RGB32);
    for (auto _ : run) {
        for (int y = 0; y < target.height(); ++y)
            std::memcpy(target.scanLine(y),
                        reinterpret_cast<const QRgb*>(with.picture.constScanLine(with.visible.top() + y)) +
                            with.visible.left(),
                        size_t(target.width()) * sizeof(QRgb));
        benchmark::ClobberMemory();
    }
}

} // namespace

void addComposition(World& world) {
    const auto with = std::make_shared<Case>(world);
    const auto add = [&](const char* name, auto work) {
        benchmark::RegisterBenchmark((name + world.name()).c_str(), [with, work](benchmark::State& run) {
            work(run, *with);
        })->Unit(benchmark::kMillisecond);
    };
    add("recompose/ours/", [](benchmark::State& run, Case& it) { recompose(run, it, false); });
    add("recompose all/ours/", [](benchmark::State& run, Case& it) { recompose(run, it, true); });
    add("recompose/plain/", [](benchmark::State& run, Case& it) { recomposePlainly(run, it); });
    add("recompose/limit/", [](benchmark::State& run, Case& it) { copyVisible(run, it); });
}

} // namespace orvinel::bench
