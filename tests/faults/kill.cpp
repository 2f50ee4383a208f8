// kill_saves KILLS SEED: kills a saving process at random moments and looks at what it left. Exit code 1 when
// a file is neither wholly old nor wholly new.

#include "base/FileDisk.h"
#include "faults/Player.h"
#include "support/MemoryDisk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

using namespace orvinel;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int steps = 400;
constexpr int bulk = 4'000;          // characters in a note: writing takes long enough to be hit
constexpr int latestKillUs = 20'000; // after the saves began
// In memory where there is such a place: a killed process leaves there what it leaves on a disk, and more of
// its moments can be hit.
const char* const fastFolder = "/dev/shm";

using Files = std::map<QString, QByteArray>;

// The player's files in a folder, but for files that are still being written.
Files filesIn(const Disk& disk, const QString& folder) {
    Files files;
    for (const QString& name : disk.list(folder + u"Personal"_s))
        if (!name.endsWith(unfinishedSuffix))
            files[name] = disk.read(folder + u"Personal/"_s + name).bytes;
    if (const ReadResult options = disk.read(folder + u"Data/Options.txt"_s);
        options.outcome == ReadResult::Outcome::Read)
        files[u"Options.txt"_s] = options.bytes;
    return files;
}

// Remembers the folder as it is after every single change.
class HistoryDisk : public MemoryDisk {
  public:
    std::vector<Files> history;

    DiskError replace(const QString& path, const QByteArray& content) override {
        return noted(MemoryDisk::replace(path, content));
    }
    DiskError rename(const QString& from, const QString& to) override {
        return noted(MemoryDisk::rename(from, to));
    }
    DiskError remove(const QString& path) override { return noted(MemoryDisk::remove(path)); }
    DiskError noted(DiskError error) {
        history.push_back(filesIn(*this, u"/o/"_s));
        return error;
    }
};

// What an undisturbed game leaves on the disk.
struct Game {
    std::vector<Files> history;
    std::vector<size_t> begins; // by step: where in the history it begins
};

Game undisturbedGame() {
    Game game;
    HistoryDisk disk;
    for (const auto& [path, content] : faultWorld())
        disk.put(u"/o/"_s + path, content);
    disk.noted({});
    Player player(disk, u"/o/"_s);
    for (int n = 0; n < steps; ++n) {
        game.begins.push_back(disk.history.size() - 1);
        if (!player.step(n, bulk))
            std::abort();
    }
    game.history = std::move(disk.history);
    return game;
}

// Writes a byte to `ready` when all is loaded.
[[noreturn]] void save(const QString& folder, int from, int ready) {
    FileDisk disk(folder);
    Player player(disk, folder);
    if (write(ready, "r", 1) != 1)
        _exit(2);
    for (int n = from; n < steps; ++n)
        if (!player.step(n, bulk))
            _exit(2);
    _exit(0);
}

struct Figures {
    int kills = 0;
    int finished = 0;   // the script was over before the signal came
    int unfinished = 0; // a file was being written
    int broken = 0;
    std::set<size_t> moments; // positions in the history that were hit
};

bool judge(const QString& folder, const std::vector<Files>& history, Figures& figures) {
    FileDisk disk(folder);
    for (const QString& name : disk.list(folder + u"Personal"_s))
        figures.unfinished += name.endsWith(unfinishedSuffix) ? 1 : 0;
    const auto found = std::find(history.begin(), history.end(), filesIn(disk, folder));
    if (found == history.end())
        return false;
    figures.moments.insert(static_cast<size_t>(found - history.begin()));
    // The next start goes on as if nothing had happened.
    const QString loaded = progressOf(Player(disk, folder).state);
    return loaded.contains(u"Ada"_s) || loaded.contains(u"Changed"_s);
}

void put(const QString& path, const QByteArray& content) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        std::abort();
}

// The world, with the player's files as they are when the step begins.
void prepare(const QString& folder, const Files& files) {
    for (const auto& [path, content] : faultWorld())
        put(folder + path, content);
    for (const auto& [name, content] : files)
        put(folder + (name == u"Options.txt" ? u"Data/"_s : u"Personal/"_s) + name, content);
}

bool killOnce(const Game& game, int from, useconds_t after, Figures& figures) {
    const QString place = QFileInfo(QString::fromLatin1(fastFolder)).isWritable()
                              ? QString::fromLatin1(fastFolder)
                              : QDir::tempPath();
    const QTemporaryDir temporary(place + u"/orvinel-kill-"_s);
    const QString folder = temporary.path() + u'/';
    prepare(folder, game.history[game.begins[static_cast<size_t>(from)]]);
    int ready[2];
    if (pipe(ready) != 0)
        return false;
    const pid_t child = fork();
    if (child == 0)
        save(folder, from, ready[1]);
    char byte = 0;
    close(ready[1]);
    const bool started = read(ready[0], &byte, 1) == 1;
    close(ready[0]);
    usleep(after);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    if (!started || (WIFEXITED(status) && WEXITSTATUS(status) != 0))
        return false;
    ++figures.kills;
    figures.finished += WIFEXITED(status) ? 1 : 0;
    return judge(folder, game.history, figures);
}

} // namespace

int main(int argc, char** argv) {
    const int kills = argc > 1 ? std::atoi(argv[1]) : 200;
    const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1;
    const Game game = undisturbedGame();
    std::mt19937 random(seed);
    std::uniform_int_distribution<useconds_t> moment(0, latestKillUs);
    std::uniform_int_distribution<int> beginning(0, steps - 1);
    Figures figures;
    for (int i = 0; i < kills; ++i)
        if (!killOnce(game, beginning(random), moment(random), figures))
            ++figures.broken;
    std::printf(
        "seed %u: %d kills at %zu different moments of %zu, %d in the middle of a file, %d after the end; "
        "%d broken\n",
        seed, figures.kills, figures.moments.size(), game.history.size(), figures.unfinished,
        figures.finished, figures.broken);
    return figures.broken == 0 && figures.kills == kills ? 0 : 1;
}
