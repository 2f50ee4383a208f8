#include "tools/WorldCheck.h"

#include "app/modData.h"
#include "app/modLanguage.h"
#include "layers/modNotes.h"
#include "progress/CapturedSkills.h"
#include "progress/OpenedTreasures.h"
#include "progress/modCharacters.h"
#include "tools/WorldWalk.h"
#include "tools/WorldWarnings.h"
#include "world/modCampaigns.h"
#include "world/modProfessions.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRect>

#include <algorithm>
#include <map>
#include <set>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int cellSide = 64; // pixels; for finding neighbours

class Rules {
  public:
    Rules(const ProgramState& state, const Disk& disk, ComplaintList& complaints)
        : state_(state), disk_(disk), skipped_(complaints), complaints_(complaints) {}

    void checkAll() {
        checkCaptions();
        for (int n = 0; n <= state_.Campaigns.highest(); ++n) {
            checkRegions(n);
            checkZones(n);
            checkSkills(n);
            checkGreens(n);
        }
        checkPets();
        const std::vector<PlacedLine> placed = placedLines(state_, disk_, skipped_);
        for (const PlacedLine& item : placed)
            checkPlaced(item);
        checkCollectors(placed);
        checkOverlaps(placed);
        checkPersonal();
    }

  private:
    void complain(const Line& line, const QString& field, const QString& reason) {
        complaints_.add({line.file, line.number, field, reason});
    }

    void checkCaptions() {
        for (int number = 1; number <= lastFixedCaption; ++number)
            if (state_.text(static_cast<Caption>(number)).isEmpty())
                complain({state_.AppPath + u"Data/Language.txt"_s}, u"number"_s,
                         u"no caption %1"_s.arg(number));
    }

    bool hasRegion(int campaign, int region) const { return !regionName(state_, campaign, region).isEmpty(); }

    // Regions that a menu offers must have a line; lines must have a picture.
    void checkRegions(int campaign) {
        const QString path = campaignFolder(state_, campaign) + u"/Regions.txt"_s;
        std::set<int> seen;
        forEachLine(disk_, path, skipped_, [&](const TextFile& file, const Line& line) {
            const int number = leadingInteger(file.field(0), 0, 255).value_or(0);
            if (!seen.insert(number).second)
                complain(line, u"region"_s, u"a second line of region %1"_s.arg(number));
            const Region* region = findRegion(state_, campaign, number);
            if (file.field(1).trimmed().isEmpty())
                complain(line, u"name"_s, u"region %1 has no name"_s.arg(number));
            if (region && disk_.length(region->RegionPicture) < 1)
                complain(line, u"picture"_s, u"no picture %1.jpg"_s.arg(file.field(0)));
        });
        if (campaignName(state_, campaign).isEmpty())
            return;
        for (const int number : regionOrder(state_, campaign))
            if (!seen.contains(number))
                complain({path}, u"region"_s, u"region %1 has no line"_s.arg(number));
    }

    void checkZones(int campaign) {
        const QString path = campaignFolder(state_, campaign) + u"/Zones.txt"_s;
        std::set<std::pair<int, int>> seen;
        forEachLine(disk_, path, skipped_, [&](const TextFile& file, const Line& line) {
            const int zone = wholeNumber(file.field(0), -32768, 32767).value_or(0);
            const int region = leadingInteger(file.field(1), 0, 255).value_or(0);
            if (!hasRegion(campaign, region))
                complain(line, u"region"_s, u"no region %1"_s.arg(region));
            else if (!seen.insert({region, zone}).second)
                complain(line, u"zone"_s, u"a second zone %1 in region %2"_s.arg(zone).arg(region));
        });
    }

    void checkSkills(int campaign) {
        const QString path = campaignFolder(state_, campaign) + u"/EliteList.txt"_s;
        std::set<int> seen;
        forEachLine(disk_, path, skipped_, [&](const TextFile& file, const Line& line) {
            const int id = leadingInteger(file.field(0), 0, largestIdentifier).value_or(0);
            const int profession = wholeNumber(file.field(1), 0, 255).value_or(0);
            const EliteSkill& skill = state_.EliteSkills[id];
            if (!seen.insert(id).second) {
                complain(line, u"skill"_s, u"a second line of skill %1"_s.arg(id));
                return;
            }
            if (professionOf(state_, profession).Name.isEmpty())
                complain(line, u"profession"_s, u"no profession %1"_s.arg(profession));
            if (skill.Campaign != campaign)
                complain(line, u"skill"_s, u"skill %1 is listed in two campaigns"_s.arg(id));
            else if (!skill.Picture.isEmpty() && disk_.length(skill.Picture) < 1)
                complain(line, u"picture"_s, u"no picture %1"_s.arg(below(skill.Picture)));
            if (skill.Exists && skill.Locations.empty())
                complain(line, u"skill"_s, u"no boss carries %1"_s.arg(skill.Name));
            if (id > highestMarkableSkill)
                complain(line, u"skill"_s, u"skill %1 cannot be marked as captured"_s.arg(id));
        });
    }

    void checkGreens(int campaign) {
        const QString path = campaignFolder(state_, campaign) + u"/Greens.txt"_s;
        forEachLine(disk_, path, skipped_, [&](const TextFile& file, const Line& line) {
            const auto items = state_.GreensOfBosses.find(folded(file.field(1).trimmed()));
            if (items != state_.GreensOfBosses.end() && state_.GreenItems[items->second.front()].EliteID < 0)
                complain(line, u"boss"_s, u"no boss \"%1\" carries it"_s.arg(file.field(1).trimmed()));
        });
    }

    void checkPets() {
        forEachLine(disk_, campaignFolder(state_, 0) + u"/PetsList.txt"_s, skipped_,
                    [&](const TextFile& file, const Line& line) {
                        const int id = leadingInteger(file.field(0), 0, largestIdentifier).value_or(0);
                        const QString& picture = state_.Pets[id].Picture;
                        if (disk_.length(picture) < 1)
                            complain(line, u"picture"_s, u"no picture %1.jpg"_s.arg(file.field(0)));
                    });
    }

    void checkPlaced(const PlacedLine& item) {
        const MapLocation& at = *item.at;
        checkOwner(item);
        if (!hasRegion(at.Campaign, at.Region)) {
            complain(item.line, u"region"_s, u"%1 stands in no region %2"_s.arg(item.name).arg(at.Region));
            return;
        }
        const Region* region = findRegion(state_, at.Campaign, at.Region);
        if (at.Zone == 0)
            complain(item.line, u"zone"_s, u"%1 has no zone"_s.arg(item.name));
        else if (!region->ZoneByIdentifier.contains(at.Zone))
            complain(item.line, u"zone"_s,
                     u"%1 stands in zone %2, which %3 lacks"_s.arg(item.name).arg(at.Zone).arg(
                         region->RegionName));
    }

    // A number within a table that no line of it names.
    void checkOwner(const PlacedLine& item) {
        if (item.kind == PlacedLine::Kind::Boss && item.id > 0 && !state_.EliteSkills[item.id].Exists)
            complain(item.line, u"skill"_s, u"no skill %1"_s.arg(item.id));
        if (item.kind == PlacedLine::Kind::Pet && item.name.isEmpty())
            complain(item.line, u"pet"_s, u"no pet %1"_s.arg(item.id));
    }

    // Without a place nobody finds a collector; its second place replaces the first.
    void checkCollectors(const std::vector<PlacedLine>& placed) {
        std::set<int> collectors;
        for (const PlacedLine& item : placed)
            if (item.kind == PlacedLine::Kind::Collector && !collectors.insert(item.id).second)
                complain(item.line, u"collector"_s, u"a second place of %1"_s.arg(item.name));
        for (int n = 0; n <= state_.Campaigns.highest(); ++n)
            forEachCollector(n, [&](int id, const Line& line) {
                if (!collectors.contains(id))
                    complain(line, u"collector"_s, u"%1 has no place"_s.arg(state_.Collectors[id].Name));
            });
    }

    // Headers of blocks that end with an empty line.
    template <typename Visit>
    void forEachCollector(int campaign, Visit visit) {
        const QString path = campaignFolder(state_, campaign) + u"/Collectors.txt"_s;
        TextFile file(disk_, path);
        while (file.nextRecord()) {
            if (file.line().trimmed().isEmpty())
                continue;
            const Line line{path, file.lineNumber()};
            file.hasFields(1);
            const int id = leadingInteger(file.field(0), 0, largestIdentifier).value_or(-1);
            if (state_.Collectors.has(id) && state_.Collectors[id].Exists)
                visit(id, line);
            while (file.nextLine() && !file.line().isEmpty()) {
            }
        }
    }

    // Bosses of one name at one point are one marker: a boss may carry several skills.
    static bool overlap(const PlacedLine& one, const PlacedLine& other) {
        const MapLocation& a = *one.at;
        const MapLocation& b = *other.at;
        if (&a == &b || (one.kind == other.kind && one.name == other.name && a.X == b.X && a.Y == b.Y))
            return false;
        return a.Left <= b.Right && b.Left <= a.Right && a.Top <= b.Bottom && b.Top <= a.Bottom;
    }

    void checkOverlaps(const std::vector<PlacedLine>& placed) {
        using Cell = std::tuple<int, int, int, int>;
        std::map<Cell, std::vector<const PlacedLine*>> cells;
        for (const PlacedLine& item : placed) {
            const MapLocation& at = *item.at;
            if (!at.placed())
                continue;
            const int column = at.X / cellSide;
            const int row = at.Y / cellSide;
            const auto reportFirst = [&](const std::vector<const PlacedLine*>& there) {
                const auto found = std::find_if(there.begin(), there.end(), [&](const PlacedLine* other) {
                    return overlap(item, *other);
                });
                if (found != there.end())
                    complain(item.line, u"place"_s, overlapText(item, **found));
                return found != there.end();
            };
            bool reported = false;
            for (int dx = -1; dx <= 1 && !reported; ++dx)
                for (int dy = -1; dy <= 1 && !reported; ++dy)
                    if (const auto there = cells.find({at.Campaign, at.Region, column + dx, row + dy});
                        there != cells.end())
                        reported = reportFirst(there->second);
            cells[{at.Campaign, at.Region, column, row}].push_back(&item);
        }
    }

    QString overlapText(const PlacedLine& item, const PlacedLine& other) const {
        return u"the marker of %1 covers that of %2 (%3:%4)"_s.arg(
            item.name, other.name, below(other.line.file), QString::number(other.line.number));
    }

    // The player's files: what belongs to no region, skill or chest of today.
    void checkPersonal() {
        forEachLine(disk_, notesPath(state_), skipped_, [&](const TextFile& file, const Line& line) {
            const int campaign = leadingInteger(file.field(4), 0, 255).value_or(0);
            const int region = leadingInteger(file.field(5), 0, 255).value_or(0);
            if (!hasRegion(campaign, region))
                complain(line, u"region"_s, u"no region %1 of campaign %2"_s.arg(region).arg(campaign));
        });
        for (int c = 1; c <= state_.Characters.highest(); ++c) {
            checkNumbers(capturedPath(state_, c), u"skill"_s, [this](int id) {
                return state_.EliteSkills.has(id) && state_.EliteSkills[id].Exists;
            });
            checkNumbers(openedTreasuresPath(state_, c), u"chest"_s,
                         [this](int index) { return state_.Treasures.has(index); });
        }
    }

    template <typename Known>
    void checkNumbers(const QString& path, const QString& what, Known known) {
        forEachLine(disk_, path, skipped_, [&](const TextFile& file, const Line& line) {
            const int number = leadingInteger(file.field(0), 0, largestIdentifier).value_or(-1);
            if (!known(number))
                complain(line, what, u"no %1 %2"_s.arg(what, file.field(0)));
        });
    }

    QString below(const QString& path) const {
        return path.startsWith(state_.AppPath) ? path.sliced(state_.AppPath.size()) : path;
    }

    const ProgramState& state_;
    const Disk& disk_;
    const ComplaintList skipped_; // of the loaders only
    ComplaintList& complaints_;
};

WorldFindings::Counts countsOf(const ProgramState& state) {
    WorldFindings::Counts counts;
    for (const Campaign& campaign : state.Campaigns) {
        counts.campaigns += campaign.CampaignName.isEmpty() ? 0 : 1;
        for (const Region& region : campaign.Regions) {
            counts.regions += region.RegionName.isEmpty() ? 0 : 1;
            counts.zones += region.RegionZones.count();
        }
    }
    for (const EliteSkill& skill : state.EliteSkills) {
        counts.skills += skill.Exists ? 1 : 0;
        counts.bosses += skill.Locations.count();
    }
    counts.greens = state.GreenItems.count();
    counts.collectors = static_cast<int>(std::count_if(state.Collectors.begin(), state.Collectors.end(),
                                                       [](const Collector& c) { return c.Exists; }));
    counts.chests = state.Treasures.count();
    counts.pets = static_cast<int>(std::count_if(state.Pets.begin(), state.Pets.end(),
                                                 [](const Pet& pet) { return !pet.Name.isEmpty(); }));
    counts.characters = static_cast<int>(namedCharacters(state).size());
    counts.notes = state.Notes.count();
    return counts;
}

} // namespace

WorldFindings checkWorld(Disk& disk, const QString& folder) {
    ProgramState state;
    state.AppPath = folder;
    PlayerFiles files(disk);
    ComplaintList complaints;
    const bool captioned = LoadLanguage(state, disk, &complaints);
    loadTables(state, files, &complaints);
    WorldFindings result;
    result.counts = countsOf(state);
    const auto isUnreadable = [](const Complaint& c) { return c.line == 0 && c.field.isEmpty(); };
    result.unreadable = (!captioned && result.counts.campaigns == 0) ||
                        std::any_of(complaints.all().begin(), complaints.all().end(), isUnreadable);
    Rules(state, disk, complaints).checkAll();
    for (const Complaint& complaint : complaints.all())
        result.findings.push_back({complaint, false});
    addWarnings(state, disk, complaints, result.findings);
    for (Finding& finding : result.findings)
        if (finding.file.startsWith(folder))
            finding.file.remove(0, folder.size());
    result.counts.errors = static_cast<int>(std::count_if(result.findings.begin(), result.findings.end(),
                                                          [](const Finding& f) { return !f.warning; }));
    std::stable_sort(result.findings.begin(), result.findings.end(), [](const Finding& a, const Finding& b) {
        return std::tie(a.file, a.line) < std::tie(b.file, b.line);
    });
    return result;
}

QString findingLine(const Finding& finding) {
    const QString field = finding.field.isEmpty() ? u"line"_s : finding.field;
    const QString file = finding.file.isEmpty() ? u"."_s : finding.file;
    return u"%1:%2: %3%4: %5"_s.arg(file, QString::number(finding.line),
                                    finding.warning ? u"warning: "_s : QString(), field, finding.reason);
}

QString findingsJson(const WorldFindings& result) {
    QJsonArray array;
    for (const Finding& finding : result.findings)
        array.append(QJsonObject{{u"file"_s, finding.file},
                                 {u"line"_s, finding.line},
                                 {u"field"_s, finding.field},
                                 {u"severity"_s, finding.warning ? u"warning"_s : u"error"_s},
                                 {u"reason"_s, finding.reason}});
    return QString::fromUtf8(QJsonDocument(array).toJson());
}

QString summaryText(const WorldFindings& result) {
    const WorldFindings::Counts& n = result.counts;
    const std::vector<std::pair<QString, int>> kinds = {
        {u"campaigns"_s, n.campaigns},   {u"regions"_s, n.regions}, {u"zones"_s, n.zones},
        {u"skills"_s, n.skills},         {u"bosses"_s, n.bosses},   {u"green items"_s, n.greens},
        {u"collectors"_s, n.collectors}, {u"chests"_s, n.chests},   {u"pets"_s, n.pets},
        {u"characters"_s, n.characters}, {u"notes"_s, n.notes}};
    QString text;
    for (const auto& [name, count] : kinds)
        text += u"%1 %2\n"_s.arg(count, 7).arg(name);
    std::map<QString, int> perFile;
    for (const Finding& finding : result.findings)
        ++perFile[finding.file.isEmpty() ? u"."_s : finding.file];
    for (const auto& [file, count] : perFile)
        text += u"%1 findings in %2\n"_s.arg(count, 7).arg(file);
    return text + u"%1 findings\n"_s.arg(result.findings.size(), 7);
}

} // namespace orvinel
