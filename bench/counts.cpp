#include "World.h"
#include "app/modData.h"
#include "layers/modCollectors.h"
#include "layers/modElite.h"
#include "support/PlainMap.h"
#include "ui/layers/modZonesView.h"
#include "ui/platform/Windows.h"

#include <QApplication>

#include <array>
#include <cstdio>

#include <valgrind/callgrind.h>

using namespace Qt::Literals::StringLiterals;

namespace orvinel::bench {

namespace {

// Runs the work once to warm up, then once counted; the counts are written under `name`.
template <typename Work>
void count(const char* name, const Work& work) {
    work();
    CALLGRIND_START_INSTRUMENTATION;
    CALLGRIND_DUMP_STATS; // zeroing alone would take a thread that has ended from the next counts
    work();
    CALLGRIND_DUMP_STATS_AT(name);
    CALLGRIND_STOP_INSTRUMENTATION;
}

void countTables(World& world) {
    std::array<ProgramState, 2> loaded; // the program gives its tables back when it ends, not while it starts
    auto next = loaded.begin();
    count("load", [&] {
        FileDisk disk(world.folder());
        PlayerFiles files(disk);
        ProgramState& state = *next++;
        state.AppPath = world.folder();
        loadTables(state, files);
    });
    const ProgramState& state = world.state();
    count("search-skills", [&] {
        EliteChoice choice;
        choice.nameText = u"qx"_s;
        eliteEntries(state, choice);
    });
    count("search-collectors", [&] {
        CollectorChoice choice;
        choice.searchText = u"qx"_s;
        collectorEntries(state, choice);
    });
    count("list-skills", [&] { eliteEntries(state, {}); });
    count("markers", [&] { allMarkers(state, world.map().shown(0)); });
}

// The region's ground as far as it is seen first, on a picture that is there already.
void countGround(World& world) {
    const MapShown shown = world.map().shown(0);
    const QRect visible = world.map().picMap().view().visible();
    const MarkerArt art;
    ZonesView zones(world.state(), art);
    QImage picture(world.map().picMap().surface()->size(), QImage::Format_RGB32);
    picture.fill(Qt::black);
    count("ground", [&] {
        MapSurface surface(picture, art,
                           [&](QImage& ground, const QRect& part) { zones.drawGround(ground, part, shown); });
        surface.composed(visible);
    });
}

void countMap(World& world) {
    MapSurface& surface = *world.map().picMap().surface();
    const MapShown shown = world.map().shown(0);
    const QRect visible = world.map().picMap().view().visible();
    bool few = false;
    count("recompose", [&] {
        for (int round = 0; round < 2; ++round) {
            few = !few;
            surface.setMarkers(allMarkers(world.state(), shown, few ? u"a"_s : QString()));
            surface.composed(visible);
        }
    });
    count("mouse-move", [&] {
        for (int x = 0; x < 200; ++x)
            world.map().askMouseOverChain({double(x), 3});
        world.map().HideInformationWindows();
    });
}

// Of four keys: two to search, two back.
void countKeys(World& world, const char* name, Tab tab, QLineEdit& field) {
    world.panel().tabs().activate(tab);
    settle();
    count(name, [&] {
        for (const char key : {'a', 'r', '\b', '\b'}) {
            pressKey(field, key);
            settle();
        }
    });
}

void countDrag(World& world) {
    MapViewport& map = world.map().picMap();
    count("drag", [&] {
        sendMouse(map, QEvent::MouseButtonPress, {200, 200}, Qt::LeftButton);
        for (int x = 200; x > 100; x -= 10) {
            sendMouse(map, QEvent::MouseMove, {x, x}, Qt::LeftButton);
            settle();
        }
        sendMouse(map, QEvent::MouseButtonRelease, {100, 100}, Qt::LeftButton);
        settle();
    });
}

} // namespace

} // namespace orvinel::bench

// bench_counts FOLDER: to be run below callgrind, which it tells what to count, on the files of a world.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    orvinel::applyAppearance(application);
    if (argc != 2) {
        std::fputs("usage: bench_counts FOLDER\n", stderr);
        return 2;
    }
    using namespace orvinel;
    bench::World world("counted", QString::fromLocal8Bit(argv[1]));
    bench::countTables(world);
    bench::countGround(world);
    bench::countMap(world);
    bench::countKeys(world, "keys-skills", Tab::Elites, *world.panel().elitePage().txtEliteName);
    bench::countKeys(world, "keys-collectors", Tab::Collectors,
                     *world.panel().collectorsPage().txtCollSearch);
    bench::countDrag(world);
    return 0;
}
