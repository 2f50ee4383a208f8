#include "Suites.h"

#include <benchmark/benchmark.h>

namespace orvinel::bench {

namespace {

ViewPoint viewPoint(QPoint at) {
    return {double(at.x()), double(at.y())};
}

// The point of the viewport, of a grid over it, that is nearest to its corner and (not) on a marker.
std::optional<QPoint> find(World& world, bool onMarker) {
    frmMap& map = world.map();
    for (int y = 3; y < map.picMap().height(); y += 6)
        for (int x = 3; x < map.picMap().width(); x += 6)
            if (map.askMouseOverChain(viewPoint({x, y})) == onMarker) {
                map.HideInformationWindows();
                return QPoint(x, y);
            }
    return std::nullopt;
}

// The middle of the map's first skill.
void centreOnMarkers(World& world) {
    for (const EliteSkill& skill : world.state().EliteSkills)
        for (const MapLocation& at : skill.Locations)
            if (world.map().shown(0).shows(at.Campaign, at.Region)) {
                world.map().CenterMapOn(at.X, at.Y);
                settle();
                return;
            }
}

void moveOverNothing(benchmark::State& run, World& world) {
    centreOnMarkers(world);
    const auto nothing = find(world, false);
    if (!nothing)
        return run.SkipWithError("markers everywhere");
    for (auto _ : run)
        benchmark::DoNotOptimize(world.map().askMouseOverChain(viewPoint(*nothing)));
}

// From the mouse move to the window on screen, and away again.
void showTooltip(benchmark::State& run, World& world) {
    centreOnMarkers(world);
    const auto marker = find(world, true);
    const auto nothing = find(world, false);
    if (!marker || !nothing)
        return run.SkipWithError("no marker to point at");
    MapViewport& map = world.map().picMap();
    settle();
    for (auto _ : run) {
        sendMouse(map, QEvent::MouseMove, *marker, Qt::NoButton);
        settle();
        sendMouse(map, QEvent::MouseMove, *nothing, Qt::NoButton);
        settle();
    }
}

} // namespace

void addMouse(World& world) {
    benchmark::RegisterBenchmark(("move/ours/" + world.name()).c_str(), [&world](benchmark::State& run) {
        moveOverNothing(run, world);
    })->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark(("tooltip/ours/" + world.name()).c_str(), [&world](benchmark::State& run) {
        showTooltip(run, world);
    })->Unit(benchmark::kMicrosecond);
}

} // namespace orvinel::bench
