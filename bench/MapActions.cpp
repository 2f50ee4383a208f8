#include "Suites.h"

#include <QBuffer>
#include <QImageReader>

#include <benchmark/benchmark.h>

namespace orvinel::bench {

namespace {

void show(World& world, std::pair<int, int> region) {
    world.map().InizializzaVariabili(world.picture(region.first, region.second), region.first, region.second);
    world.map().UpdateMapWithNewEliteSkills();
    settle();
}

// Goes round `count` regions: few are all in the cache, many never are.
void switchRegions(benchmark::State& run, World& world, size_t count) {
    const auto regions = world.regions();
    const std::pair<int, int> home{world.campaign(), world.region()};
    count = std::min(count, regions.size());
    for (size_t i = 0; i < count; ++i)
        show(world, regions[i]);
    size_t next = 0;
    for (auto _ : run) {
        show(world, regions[next]);
        next = (next + 1) % count;
    }
    show(world, home);
}

void decodePictures(benchmark::State& run, World& world) {
    std::vector<QByteArray> files;
    for (const auto& [campaign, region] : world.regions())
        files.push_back(world.disk().read(world.picture(campaign, region)).bytes);
    size_t next = 0;
    for (auto _ : run) {
        QBuffer buffer(&files[next]);
        benchmark::DoNotOptimize(QImageReader(&buffer, "jpeg").read());
        next = (next + 1) % files.size();
    }
}

void drag(benchmark::State& run, World& world) {
    MapViewport& map = world.map().picMap();
    settle();
    sendMouse(map, QEvent::MouseButtonPress, {200, 200}, Qt::LeftButton);
    bool there = false;
    for (auto _ : run) {
        sendMouse(map, QEvent::MouseMove, there ? QPoint(200, 200) : QPoint(193, 195), Qt::LeftButton);
        settle();
        there = !there;
    }
    sendMouse(map, QEvent::MouseButtonRelease, {200, 200}, Qt::LeftButton);
    settle();
}

void blink(benchmark::State& run, World& world) {
    MapViewport& map = world.map().picMap();
    const QRect visible = map.view().visible();
    const MapViewport::Selection selection{Sprite::Selezione, visible.center()};
    bool on = true;
    for (auto _ : run) {
        map.setSelection(1, on ? std::optional(selection) : std::nullopt, world.map().art());
        settle();
        on = !on;
    }
    map.setSelection(1, std::nullopt, world.map().art());
    settle();
}

} // namespace

void addMapActions(World& world) {
    const auto add = [&](const char* name, auto work, benchmark::TimeUnit unit) {
        benchmark::RegisterBenchmark((name + world.name()).c_str(), [&world, work](benchmark::State& run) {
            work(run, world);
        })->Unit(unit);
    };
    if (world.regions().size() > 1) {
        add(
            "switch warm/ours/", [](benchmark::State& run, World& it) { switchRegions(run, it, 2); },
            benchmark::kMillisecond);
        add(
            "switch cold/ours/", [](benchmark::State& run, World& it) { switchRegions(run, it, 1000); },
            benchmark::kMillisecond);
        add("switch cold/limit/", decodePictures, benchmark::kMillisecond);
    }
    add("drag/ours/", drag, benchmark::kMillisecond);
    add("blink/ours/", blink, benchmark::kMicrosecond);
}

} // namespace orvinel::bench
