#include "World.h"

#include "ui/panel/frmPopupMenu.h"
#include "ui/platform/Windows.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QKeyEvent>
#include <QTimer>

#include <malloc.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <map>

namespace orvinel::bench {

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr int samples = 16;
constexpr int settledSample = samples / 8; // the first hour of eight: caches fill, every window was open
constexpr double mostGrowthMb = 8;         // as far as the allocator's own fluctuation goes
constexpr int idleMs = 500;
constexpr int mostGrowthTimers = 5; // in that time: what is selected blinks or not
constexpr int actionsPerRegion = 25;

struct Sample {
    double memoryMb = 0;
    int handles = 0;
    int widgets = 0;
    int timers = 0; // that went off while nobody did anything
    int files = 0;  // in the program's folder
};

double residentMb() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS:"))
            return std::stod(line.substr(6)) / 1024;
    return 0;
}

int filesBelow(const QString& folder) {
    int count = 0;
    for (QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); it.hasNext();
         ++count)
        it.next();
    return count;
}

// Timers have no list of their own: what one that was left behind does is to go off.
class TimerEvents : public QObject {
  public:
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Timer ? 1 : 0;
        return false;
    }
};

int timersInAWhile() {
    TimerEvents events;
    qApp->installEventFilter(&events);
    QEventLoop loop;
    QTimer::singleShot(idleMs, &loop, &QEventLoop::quit);
    loop.exec();
    return events.count;
}

Sample sampleOf(World& world) {
    settle();
    malloc_trim(0);
    const QDir handles(u"/proc/self/fd"_s);
    return {
        residentMb(),
        static_cast<int>(handles.entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size()),
        static_cast<int>(QApplication::allWidgets().size()), timersInAWhile(), filesBelow(world.folder())};
}

// Whatever dialog or menu holds the player up is closed a moment later, as by Escape.
class Closer : public QObject {
  public:
    Closer() {
        timer_.callOnTimeout(this, [this] {
            QWidget* open = QApplication::activePopupWidget();
            if (!open)
                open = QApplication::activeModalWidget();
            if (!open)
                return;
            ++closed_[open->metaObject()->className()];
            open->close();
        });
        timer_.start(1);
    }
    void pause(bool on) { on ? timer_.stop() : timer_.start(1); }
    // How often by kind.
    const std::map<QByteArray, int>& closed() const { return closed_; }

  private:
    QTimer timer_;
    std::map<QByteArray, int> closed_;
};

void click(QWidget& at, QPoint place, Qt::MouseButton button) {
    sendMouse(at, QEvent::MouseButtonPress, place, button);
    sendMouse(at, QEvent::MouseButtonRelease, place, button);
}

void visit(World& world, std::pair<int, int> region) {
    SelectionArea& selection = world.panel().selection();
    selection.cmbCampaign->select(selection.cmbCampaign->findData(region.first));
    selection.cmbRegion->select(selection.cmbRegion->findData(region.second));
}

// Everything but what starts other programs.
void chooseFromMenus(int step) {
    for (QWidget* window : QApplication::allWidgets())
        if (auto* menus = qobject_cast<frmPopupMenu*>(window)) {
            const auto menu = static_cast<size_t>(step) % menus->menus().size();
            const auto& entries = menus->menus()[menu].Entries;
            const size_t entry = static_cast<size_t>(step / 3) % entries.size();
            const MenuAction action = entries[entry].Action;
            for (const MenuAction outside :
                 {MenuAction::Update, MenuAction::StartPage, MenuAction::History, MenuAction::Guide})
                if (action == outside)
                    return;
            menus->OnMenuEntryClick(static_cast<int>(menu), static_cast<int>(entry));
            return;
        }
}

void playLists(World& world, int step) {
    for (ListBox* list : world.panel().findChildren<ListBox*>()) {
        if (!list->isVisible() || list->count() == 0)
            continue;
        list->select(step * 7 % list->count());
        const QPoint place(20, 4 + step % 5 * 12);
        click(*list->viewport(), place, step % 3 ? Qt::LeftButton : Qt::RightButton);
        sendMouse(*list->viewport(), QEvent::MouseButtonDblClick, place, Qt::LeftButton);
        settle();
    }
}

void playMap(World& world, int step) {
    MapViewport& map = world.map().picMap();
    for (int x = step % 40; x < map.width(); x += 40)
        sendMouse(map, QEvent::MouseMove, {x, (x + step * 13) % map.height()}, Qt::NoButton);
    const QPoint place(step * 31 % map.width(), step * 17 % map.height());
    click(map, place, step % 2 ? Qt::LeftButton : Qt::RightButton);
    sendMouse(map, QEvent::MouseButtonDblClick, place, Qt::LeftButton);
    sendMouse(map, QEvent::MouseButtonRelease, place, Qt::LeftButton);
    QKeyEvent pin(QEvent::KeyPress, Qt::Key_Insert, Qt::NoModifier);
    QCoreApplication::sendEvent(&map, &pin);
}

void search(World& world, int step) {
    QLineEdit* const fields[] = {
        world.panel().elitePage().txtEliteName, world.panel().collectorsPage().txtCollSearch,
        world.panel().greensPage().txtGreensName, world.panel().notesPage().txtNoteBody};
    for (const char key : {char('a' + step % 26), 'e', '\b', '\b'})
        pressKey(*fields[step % 4], key);
}

void act(World& world, int step) {
    if (step % actionsPerRegion == 0) {
        const auto regions = world.regions();
        visit(world, regions[size_t(step / actionsPerRegion) % regions.size()]);
    }
    world.panel().tabs().activate(allTabs[static_cast<size_t>(step / 4) % allTabs.size()]);
    switch (step % 4) {
    case 0:
        search(world, step / 4);
        break;
    case 1:
        playLists(world, step / 4);
        break;
    case 2:
        playMap(world, step / 4);
        break;
    default:
        chooseFromMenus(step / 4);
    }
    settle();
}

int run(const QString& folder, int actions) {
    World world("longplay", folder);
    Closer closer;
    std::array<Sample, samples + 1> taken;
    std::printf("%8s %8s %8s %8s %8s %8s\n", "actions", "MB", "handles", "widgets", "timers", "files");
    for (int step = 0, at = 0; step <= actions; ++step) {
        if (step == actions * at / samples) {
            closer.pause(true);
            const Sample& now = taken[size_t(at++)] = sampleOf(world);
            closer.pause(false);
            std::printf("%8d %8.1f %8d %8d %8d %8d\n", step, now.memoryMb, now.handles, now.widgets,
                        now.timers, now.files);
            std::fflush(stdout);
        }
        act(world, step);
    }
    for (const auto& [kind, count] : closer.closed())
        std::printf("%s: %d times\n", kind.constData(), count);
    Sample settled;
    for (int at = 0; at <= settledSample; ++at) {
        const Sample& early = taken[size_t(at)];
        settled = {std::max(settled.memoryMb, early.memoryMb), std::max(settled.handles, early.handles),
                   std::max(settled.widgets, early.widgets), std::max(settled.timers, early.timers),
                   std::max(settled.files, early.files)};
    }
    const Sample& last = taken[samples];
    const bool grown = last.memoryMb > settled.memoryMb + mostGrowthMb || last.handles > settled.handles ||
                       last.widgets > settled.widgets || last.files > settled.files ||
                       last.timers > settled.timers + mostGrowthTimers;
    std::printf("%s\n", grown ? "GROWN since the first eighth" : "no growth since the first eighth");
    return grown ? 1 : 0;
}

} // namespace

} // namespace orvinel::bench

// bench_longplay FOLDER ACTIONS: plays in all windows and regions, and looks whether anything is left behind.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    orvinel::applyAppearance(application);
    if (argc != 3) {
        std::fputs("usage: bench_longplay FOLDER ACTIONS\n", stderr);
        return 2;
    }
    return orvinel::bench::run(QString::fromLocal8Bit(argv[1]), std::atoi(argv[2]));
}
