// play_steps FOLDER FROM TO: makes a small world in an empty folder, or goes on in one that is there, and
// plays those steps. Tells each one that was saved, as soon as it is. Exit code 1 when a step was not saved.

#include "app/modData.h"
#include "base/FileDisk.h"
#include "faults/Player.h"

#include <cstdio>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

int main(int argc, char** argv) {
    using namespace orvinel;
    if (argc != 4)
        return 2;
    const QString folder = QString::fromLocal8Bit(argv[1]) + u'/';
    FileDisk disk(folder);
    if (!disk.folderExists(folder + u"Data"_s))
        for (const auto& [path, content] : faultWorld())
            if (disk.replace(folder + path, content))
                return 2;
    ProgramState state;
    state.AppPath = folder;
    MoveToPersonalFolder(state, disk);
    Player player(disk, folder);
    bool saved = true;
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    for (int n = std::atoi(argv[2]); n < std::atoi(argv[3]) && saved; ++n)
        if ((saved = player.step(n, 6000)))
            std::fputs(".\n", stdout);
    return saved ? 0 : 1;
}
