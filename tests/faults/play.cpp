// play_steps FOLDER FROM TO: makes a small world in an empty folder, or goes on in one that is there, and
// plays those steps. Exit code 1 when a step was not saved.

#include "base/FileDisk.h"
#include "faults/Player.h"

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
    Player player(disk, folder);
    bool saved = true;
    for (int n = std::atoi(argv[2]); n < std::atoi(argv[3]); ++n)
        saved = player.step(n, 1000) && saved;
    return saved ? 0 : 1;
}
