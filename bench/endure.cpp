#include "World.h"

#include "ui/platform/Windows.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

#include <cstdio>
#include <fstream>

#include <sys/resource.h>

namespace orvinel::bench {

namespace {

constexpr int idleMs = 20'000;
// An hour of a busy player: a search or a jump every few seconds.
constexpr int hourOfActions = 1200;

double processorSeconds() {
    rusage used = {};
    getrusage(RUSAGE_SELF, &used);
    const auto seconds = [](const timeval& time) { return double(time.tv_sec) + double(time.tv_usec) / 1e6; };
    return seconds(used.ru_utime) + seconds(used.ru_stime);
}

double memoryMb(const char* which) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with(which))
            return std::stod(line.substr(std::char_traits<char>::length(which))) / 1024;
    return 0;
}

void idle(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

// The processor's share, in percent of one core, while a marker blinks and nobody touches anything.
double blinkingShare(World& world) {
    world.panel().tabs().activate(Tab::Elites);
    world.panel().elitePage().lstElite->select(0);
    settle();
    idle(1000);
    const double before = processorSeconds();
    idle(idleMs);
    return (processorSeconds() - before) / (idleMs / 1000.) * 100;
}

void visit(World& world, std::pair<int, int> region) {
    SelectionArea& selection = world.panel().selection();
    selection.cmbCampaign->select(selection.cmbCampaign->findData(region.first));
    selection.cmbRegion->select(selection.cmbRegion->findData(region.second));
    settle();
}

void act(World& world, int step) {
    frmMenu& panel = world.panel();
    MapViewport& map = world.map().picMap();
    panel.tabs().activate(allTabs[static_cast<size_t>(step) % allTabs.size()]);
    QLineEdit* const fields[] = {panel.elitePage().txtEliteName, panel.collectorsPage().txtCollSearch,
                                 panel.greensPage().txtGreensName, panel.notesPage().txtNoteBody};
    QLineEdit& field = *fields[step % 4];
    for (const char key : {char('a' + step % 26), 'e', '\b', '\b'}) {
        pressKey(field, key);
        settle();
    }
    ListBox& list = *panel.elitePage().lstElite;
    if (list.count() > 0)
        list.select(step * 7 % list.count());
    for (int x = 0; x < map.width(); x += 40) {
        sendMouse(map, QEvent::MouseMove, {x, (x + step * 13) % map.height()}, Qt::NoButton);
        settle();
    }
    if (step % 20 == 0) {
        const auto regions = world.regions();
        visit(world, regions[size_t(step / 20) % regions.size()]);
    }
}

int run(const QString& folder) {
    World world("endure", folder);
    std::printf("memory after start, MB: %.1f\n", memoryMb("VmRSS:"));
    std::printf("idle with a marker blinking, %% of a core: %.2f\n", blinkingShare(world));
    for (const auto& region : world.regions())
        visit(world, region);
    std::printf("memory after all regions, MB: %.1f\n", memoryMb("VmRSS:"));
    for (int step = 0; step < hourOfActions; ++step) {
        act(world, step);
        if ((step + 1) % (hourOfActions / 4) == 0)
            std::printf("memory after %d minutes of use, MB: %.1f\n", (step + 1) * 60 / hourOfActions,
                        memoryMb("VmRSS:"));
    }
    std::printf("most memory held, MB: %.1f\n", memoryMb("VmHWM:"));
    return 0;
}

} // namespace

} // namespace orvinel::bench

// bench_endure FOLDER: processor time while idle, and memory over a long use.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    orvinel::applyAppearance(application);
    if (argc != 2) {
        std::fputs("usage: bench_endure FOLDER\n", stderr);
        return 2;
    }
    return orvinel::bench::run(QString::fromLocal8Bit(argv[1]));
}
