#include "fuzz/HostileWorld.h"

#include "app/ProgramState.h"
#include "app/modData.h"
#include "app/modLanguage.h"
#include "layers/EliteFiles.h"
#include "layers/modCollectors.h"
#include "layers/modElite.h"
#include "layers/modGreenies.h"
#include "layers/modNotes.h"
#include "layers/modPets.h"
#include "layers/modTreasures.h"
#include "progress/CapturedSkills.h"
#include "progress/OpenedTreasures.h"
#include "progress/modCharacters.h"
#include "support/MemoryDisk.h"
#include "tools/Backup.h"
#include "tools/TarArchive.h"
#include "tools/WorldCheck.h"
#include "tools/ZipArchive.h"
#include "world/modCampaigns.h"
#include "world/modProfessions.h"
#include "world/modZones.h"

#include <QCryptographicHash>

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// The readers in one form.
template <auto load>
void worlds(ProgramState& state, PlayerFiles& files) {
    load(state, files.disk(), nullptr);
}
template <auto load>
void players(ProgramState& state, PlayerFiles& files) {
    load(state, files, nullptr);
}

#define SUNHOLLOW "Campaign.03.Sunhollow/"
// In the order in which a start reads them: each reader finds what the ones before it have filled.
constexpr HostileFile files[] = {
    {"language", "Data/Language.txt", "9\tAll\r\n45\tNo attribute\r\n4\tAll\\ncharacters\r\n",
     worlds<LoadLanguage>},
    {"characters", "Personal/Characters.txt", "01\tAda\r\n03\tBert\r\n", players<LoadCharacters>},
    {"regions", SUNHOLLOW "Regions.txt", "1\tFjord\r\n02\tGlacier\r\n", worlds<LoadCampaigns>},
    {"zones", SUNHOLLOW "Zones.txt",
     "; zones\r\n5\t1\t2\t1\t300\t300\tHarbour\r\n6\t2\t1\t0\t90\t90\tIce\r\n", worlds<LoadZones>},
    {"professions", "Campaign.00.Core/Professions.txt",
     "1\tMage\t&HFF8000\tM\tFire\tIce\r\n2\tBard\t255\tB\r\n", worlds<LoadProfessions>},
    {"collectors", SUNHOLLOW "Collectors.txt",
     "; c\r\n4\tSmith\t0\t1\r\nHarbour\r\n3 Claws\r\nAxe\t3\tFire +1\tSharp\r\nBow\t4\r\n\r\n"
     "5\tTailor\t1\r\nIce\r\n1 Hide\r\n",
     worlds<LoadCollectors>},
    {"elite_list", SUNHOLLOW "EliteList.txt",
     "1\t1\tSpark\tFire\tSpell\t-1\t0\t5\t1/4\t10\tBurns.\r\n2\t2\tHum\r\n", worlds<LoadEliteSkills>},
    {"greens", SUNHOLLOW "Greens.txt", "; g\r\nUlf's Ring\tULF\tFire +2\tShiny\r\nEir's Bow\tEir\r\n",
     worlds<LoadGreens>},
    {"notes", "Personal/Notes.txt",
     "; mine\r\nHut\tdry{#ENTER#}warm\t120\t80\t3\t1\r\nCave\t\t9\t9\t3\t1\r\n", players<LoadNotes>},
    {"elite_locations", SUNHOLLOW "EliteLocations.txt",
     ";[Version]1.0\r\n1\t1\t750\t750\tBorg\tA\t5\tOnly during\\nwinter\r\n;[Version]1.1\r\n"
     "2\t1\t90\t90\tUlf\tD\t5\r\n0\t2\t9\t9\tEir\t\t6\r\n",
     worlds<LoadEliteLocations>},
    {"captured", "Personal/Char01CapElite.txt", "0001\r\n0002\r\n12345\r\n", players<LoadCapturedSkills>},
    {"collector_locations", SUNHOLLOW "CollectorsLocations.txt", "4\t1\t80\t50\t5\r\n5\t2\t80\t50\t6\r\n",
     worlds<LoadCollectorLocations>},
    {"treasures", SUNHOLLOW "Treasures.txt", "Urn\t110\t50\t1\t5\r\nBox\t110\t90\t2\t6\r\n",
     worlds<LoadTreasures>},
    {"opened", "Personal/Char01OpenedTreasures.txt", "0001\t16102011\r\n0002\t\r\n0900\t01012026\r\n",
     players<LoadOpenedTreasures>},
    {"pets", "Campaign.00.Core/PetsList.txt", "1\tWolf\tPine\r\n2\tBear\tHoney\r\n", worlds<LoadPets>},
    {"pet_locations", SUNHOLLOW "PetsLocations.txt", "1\t1\t5\t140\t50\r\n2\t2\t6\t140\t50\r\n",
     worlds<LoadPetLocations>},
    {"options", "Data/Options.txt", "[OLD SELECTION]\r\nCampaign=1\r\nPosX=-20\r\nAllElite=-1\r\nZone=3\r\n",
     LoadOptions},
};
#undef SUNHOLLOW

const QString folder = u"/o/"_s;
const QDateTime archiveTime(QDate(2026, 3, 7), QTime(12, 0));

QString pathOf(const HostileFile& file) {
    return folder + QLatin1String(file.path);
}

const MemoryDisk& smallWorld() {
    static const MemoryDisk world = [] {
        MemoryDisk disk;
        for (const HostileFile& file : files)
            disk.put(pathOf(file), file.good);
        return disk;
    }();
    return world;
}

// The tables as the readers of the files before `file` fill them.
const ProgramState& tablesBefore(const HostileFile& file) {
    static const std::vector<ProgramState> tables = [] {
        std::vector<ProgramState> before;
        MemoryDisk disk = smallWorld();
        PlayerFiles opened(disk);
        ProgramState state;
        state.AppPath = folder;
        for (const HostileFile& next : files) {
            before.push_back(state);
            next.load(state, opened);
        }
        return before;
    }();
    return tables[static_cast<size_t>(&file - files)];
}

MemoryDisk worldWith(const HostileFile& file, const QByteArray& bytes) {
    MemoryDisk disk = smallWorld();
    disk.put(pathOf(file), bytes);
    return disk;
}

struct Start {
    ProgramState state;
    PlayerFiles files;

    explicit Start(Disk& disk) : files(disk) {
        state.AppPath = folder;
        LoadLanguage(state, disk);
        loadTables(state, files);
    }
};

std::vector<int> numbersOf(const std::vector<ListEntry>& entries) {
    std::vector<int> numbers;
    for (const ListEntry& entry : entries)
        numbers.push_back(entry.data);
    return numbers;
}

// Everything that the panel and the map would ask for a region.
size_t lookAround(const ProgramState& state, const Place& place) {
    const MapShown shown{place.campaign, place.region, zoneIdentifier(state, place)};
    const EliteChoice eliteChoice{
        .place = place, .profession = 1, .secondary = 2, .uncapturedOnly = true, .bossText = u"o"_s};
    const std::vector<int> elite = numbersOf(eliteEntries(state, eliteChoice));
    const std::vector<int> greens =
        numbersOf(greenEntries(state, {.place = place, .additionalText = u"f"_s}));
    CollectorChoice wanted;
    wanted.place = place;
    wanted.attributeWords = attributeWords(state, 1, {});
    const std::vector<int> collectors = numbersOf(collectorEntries(state, wanted));
    const std::vector<int> pets = numbersOf(petEntries(state, {place}));
    const std::vector<int> chests = numbersOf(treasureEntries(state, {place}));
    const std::vector<int> notes = numbersOf(noteEntries(state, {place, u"h"_s, {}}));
    for (const int id : elite)
        eliteLocationEntries(state, id, eliteChoice);
    for (const int id : collectors)
        collectorTooltip(state, id, wanted);
    for (const int index : chests)
        treasureTooltip(state, index);
    const HitIndex index(eliteHitAreas(state, elite, greens, shown));
    size_t drawn = index.first({50, 50}) ? 1 : 0;
    drawn +=
        eliteMarkers(state, elite, shown, {}).size() + greenMarkers(state, greens, elite, shown, true).size();
    drawn += collectorMarkers(state, collectors, shown).size() + petMarkers(state, pets, shown).size();
    drawn += treasureMarkers(state, chests, shown).size() + noteMarkers(state, notes, shown).size();
    return drawn + zoneEntries(state, place.campaign, place.region).size() +
           requestTypeEntries(state, CollectorChoice::anyLevel).size() + campaignEntries(state).size();
}

// The player's files as the tables stand, by path.
std::map<QString, QString> playersTexts(const ProgramState& state) {
    std::map<QString, QString> texts = {{charactersPath(state), charactersFile(state)},
                                        {notesPath(state), notesFile(state)},
                                        {optionsPath(state), optionsFile(state.AppOptions)}};
    for (const ListEntry& character : namedCharacters(state)) {
        texts[capturedPath(state, character.data)] = capturedFile(state, character.data);
        texts[openedTreasuresPath(state, character.data)] = openedTreasuresFile(state, character.data);
    }
    return texts;
}

// What is written is read back as it was; bytes that a rewrite would lose are beside it.
QString rewrite(MemoryDisk& disk, Start& start) {
    const auto before = playersTexts(start.state);
    for (const auto& [path, text] : before)
        if (!start.files.save(path, text).saved())
            return u"not saved: "_s + path;
    for (const auto& [path, text] : playersTexts(Start(disk).state))
        if (const auto old = before.find(path);
            old == before.end() || (old->second != text && path != optionsPath(start.state)))
            return u"read back differently: "_s + path;
    return {};
}

} // namespace

std::span<const HostileFile> hostileFiles() {
    return files;
}

void readAlone(const HostileFile& file, const QByteArray& bytes) {
    MemoryDisk disk;
    disk.put(pathOf(file), bytes);
    PlayerFiles opened(disk);
    ProgramState state = tablesBefore(file);
    file.load(state, opened);
}

QString startWith(const HostileFile& file, const QByteArray& bytes) {
    MemoryDisk disk = worldWith(file, bytes);
    const QString text = decodeText(bytes);
    if (decodeText(encodeText(text)) != text)
        return u"the text changes when it is written"_s;
    Start start(disk);
    for (const Place& place : {Place{}, Place{3, 1, 1}, Place{3, 2, 0}, Place{1, 8, 3}})
        lookAround(start.state, place);
    for (const Finding& finding : checkWorld(disk, folder).findings)
        findingLine(finding);
    return rewrite(disk, start);
}

namespace {

// As a backup's files are called. Names that only a hostile archive has, such as a folder's, need not be
// written as they were.
bool isBackupsName(const ArchivedFile& file) {
    return !file.name.isEmpty() && !file.name.endsWith(u'/') &&
           std::all_of(file.name.begin(), file.name.end(),
                       [](QChar c) { return c > u' ' && c < u'\x7f' && c != u'\\'; });
}

QString rewrittenZip(const ArchiveContent& content) {
    if (!content.problem.isEmpty() ||
        !std::all_of(content.files.begin(), content.files.end(), isBackupsName) ||
        readZip(writeZip(content.files, archiveTime)).files == content.files)
        return {};
    return u"an archive changes when it is written again"_s;
}

} // namespace

QByteArray sealedZip(const QByteArray& entries) {
    const QByteArray seal =
        "Orvinel SHA-256 " + QCryptographicHash::hash(entries, QCryptographicHash::Sha256).toHex();
    return entries + static_cast<char>(seal.size()) + '\0' + seal;
}

QString readArchive(const QByteArray& bytes) {
    if (bytes.startsWith("PK"))
        return rewrittenZip(readZip(bytes));
    const ArchiveContent content = readTar(bytes);
    if (content.problem.isEmpty())
        if (const auto written = writeTar(content.files, archiveTime))
            if (readTar(*written).files != content.files)
                return u"an archive changes when it is written again"_s;
    return {};
}

QString restoreArchive(const QByteArray& bytes) {
    MemoryDisk disk = smallWorld();
    const bool zip = bytes.startsWith("PK");
    disk.put(zip ? u"/o/Backups/a.zip"_s : u"/o/Backups/a.tar"_s, bytes);
    Backup backup(disk, folder, [] { return archiveTime; });
    backup.verify(u"a"_s);
    backup.restore(u"a"_s, true);
    return disk.content(folder + u"Data/Language.txt"_s) == files[0].good ? QString()
                                                                          : u"a restore went too far"_s;
}

} // namespace orvinel
