#include "app/modData.h"

#include "app/ProgramState.h"
#include "app/modLanguage.h"
#include "base/RationedDisk.h"
#include "layers/EliteFiles.h"
#include "layers/modCollectors.h"
#include "layers/modGreenies.h"
#include "layers/modNotes.h"
#include "layers/modPets.h"
#include "layers/modTreasures.h"
#include "progress/CapturedSkills.h"
#include "progress/OpenedTreasures.h"
#include "progress/modCharacters.h"
#include "world/modCampaigns.h"
#include "world/modProfessions.h"
#include "world/modZones.h"

#include <QScopeGuard>
#include <QStringList>

#include <algorithm>
#include <future>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int updaterPauseMs = 1000;
constexpr size_t mostNamed = 12; // lines that a message has room for on a small screen

QString namesOf(const std::vector<QString>& paths, const QString& folder) {
    QStringList names;
    for (size_t i = 0; i < std::min(paths.size(), mostNamed); ++i)
        names.push_back(paths[i].startsWith(folder) ? paths[i].sliced(folder.size()) : paths[i]);
    if (paths.size() > mostNamed)
        names.push_back(u"... (+ %1)"_s.arg(paths.size() - mostNamed));
    return names.join(u'\n');
}

// What Personal has already stays in both places.
void takeOverGathered(const QString& gathering, const QString& personal, Disk& disk) {
    for (const QString& name : disk.list(gathering))
        disk.rename(gathering + u'/' + name, personal + u'/' + name);
    disk.removeFolder(gathering);
}

// Told at the start, not when the first note is lost.
void tellOfReadOnlyFolder(const ProgramState& state, const Disk& disk, Desktop& desktop) {
    for (const QString& name : {u"Personal"_s, u"Data"_s}) {
        const QString folder = state.AppPath + name;
        const QString asked = disk.folderExists(folder) ? folder : state.AppPath;
        if (disk.mayWrite(asked))
            continue;
        desktop.message(MessageIcon::Critical, programName(), state.text(Caption::ReadOnlyFolder).arg(asked));
        return;
    }
}

// Collectors take nearly as long as everything else and share no table with it: `collectors` says whether
// they are loaded beside the rest or after it. Gives what was left out.
std::vector<QString> loadWithin(ProgramState& state, PlayerFiles& files, Complaints* complaints,
                                std::launch collectors) {
    const RationedDisk disk(files.disk(), largestDataSum);
    files.readThrough(&disk);
    const auto unlimited = qScopeGuard([&files] { files.readThrough(nullptr); });
    state.TabColors = {0x5DDBFF, 0xDA9C76, 0xC4E0AF, 0xB0B0B0, 0x3C7BCC, 0, 0, 0, 0xB0B0B0};
    LoadCharacters(state, files, complaints);
    LoadCampaigns(state, disk, complaints);
    std::future<void> withCollectors = std::async(collectors, [&] {
        LoadCollectors(state, disk, complaints);
        LoadCollectorLocations(state, disk, complaints);
    });
    LoadZones(state, disk, complaints);
    LoadProfessions(state, disk, complaints);
    LoadEliteSkills(state, disk, complaints);
    LoadGreens(state, disk, complaints);
    LoadNotes(state, files, complaints);
    LoadEliteLocations(state, disk, complaints);
    LoadCapturedSkills(state, files, complaints);
    LoadTreasures(state, disk, complaints);
    LoadOpenedTreasures(state, files, complaints);
    LoadPets(state, disk, complaints);
    LoadPetLocations(state, disk, complaints);
    LoadOptions(state, files);
    withCollectors.get();
    return disk.refused();
}

} // namespace

void LoadAll(ProgramState& state, PlayerFiles& files, Desktop& desktop) {
    MoveToPersonalFolder(state, files.disk());
    InstallPendingUpdater(state, files.disk(), desktop);
    const std::vector<QString> leftOut = loadTables(state, files);
    if (!leftOut.empty())
        desktop.message(MessageIcon::Critical, programName(),
                        state.text(Caption::TooMuchData) + u"\n\n"_s + namesOf(leftOut, state.AppPath));
    tellOfReadOnlyFolder(state, files.disk(), desktop);
}

std::vector<QString> loadTables(ProgramState& state, PlayerFiles& files, Complaints* complaints) {
    // Complaints come in one order, so do the files that a folder too large for all of them loses.
    if (!complaints && loadWithin(state, files, nullptr, std::launch::async).empty())
        return {};
    return loadWithin(state, files, complaints, std::launch::deferred);
}

void MoveToPersonalFolder(const ProgramState& state, Disk& disk) {
    const QString personal = state.AppPath + u"Personal"_s;
    // The files gather in a folder of another name, so that Personal exists only when all have arrived.
    const QString gathering = personal + u".new"_s;
    if (disk.folderExists(personal)) {
        if (disk.folderExists(gathering))
            takeOverGathered(gathering, personal, disk);
        return;
    }
    const bool taken = disk.read(personal).outcome != ReadResult::Outcome::NotThere;
    if (taken && !PlayerFiles(disk).putAside(personal).saved())
        return;
    const QString data = state.AppPath + u"Data"_s;
    disk.createFolder(gathering);
    for (int n = 1; n <= mostCharacters; ++n) {
        const QString name = u"/Char"_s + fixedDigits(n, 2) + u"CapElite.txt"_s;
        if (disk.length(data + name) >= 1)
            disk.rename(data + name, gathering + name);
    }
    disk.rename(data + u"/Characters.txt"_s, gathering + u"/Characters.txt"_s);
    disk.rename(gathering, personal);
}

void InstallPendingUpdater(const ProgramState& state, Disk& disk, Desktop& desktop) {
    if (disk.length(state.AppPath + u"update.dat"_s) < 1)
        return;
    desktop.wait(updaterPauseMs);
    if (disk.remove(state.AppPath + u"update.exe"_s))
        return;
    desktop.wait(updaterPauseMs);
    disk.makeRunnable(state.AppPath + u"update.dat"_s);
    disk.rename(state.AppPath + u"update.dat"_s, state.AppPath + u"update.exe"_s);
}

} // namespace orvinel
