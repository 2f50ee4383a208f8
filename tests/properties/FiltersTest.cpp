// Every list equals the obvious one, and list, markers and what the mouse finds agree, on random worlds.

#include "app/ProgramState.h"
#include "app/modData.h"
#include "layers/modCollectors.h"
#include "layers/modElite.h"
#include "layers/modGreenies.h"
#include "layers/modNotes.h"
#include "layers/modPets.h"
#include "layers/modTreasures.h"
#include "support/MemoryDisk.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <functional>

namespace orvinel {
namespace {

using namespace Qt::Literals::StringLiterals;

int number(int from, int to) {
    return *rc::gen::inRange(from, to + 1);
}

QByteArray word() {
    static const char* const words[] = {"Frost", "frost bite", "Ember",  "EMBER Wind",
                                        "Ash",   "Tide",       "Old Ash"};
    return words[number(0, 6)];
}

QByteArray place() {
    return QByteArray::number(number(1, 2)) + '\t' + QByteArray::number(number(0, 300)) + '\t' +
           QByteArray::number(number(0, 300));
}

QByteArray lines(int most, const std::function<QByteArray(int)>& line) {
    QByteArray text;
    const int count = number(0, most);
    for (int i = 1; i <= count; ++i)
        text += line(i) + "\r\n";
    return text;
}

QByteArray zone() {
    return QByteArray::number(number(5, 7));
}

struct RandomWorld {
    MemoryDisk disk;
    PlayerFiles files{disk};
    ProgramState state;

    RandomWorld() {
        state.AppPath = u"/o/"_s;
        disk.put(u"/o/Campaign.00.Core/Professions.txt"_s,
                 "1\tMage\t1\tM\tFire\tIce\r\n2\tBard\t2\tB\tSong\r\n");
        disk.put(u"/o/Personal/Characters.txt"_s, "01\tAda\r\n02\tBert\r\n");
        for (const QString& campaign : {u"/o/Campaign.01.Ash/"_s, u"/o/Campaign.03.Bay/"_s})
            fill(campaign);
        for (int c = 1; c <= 2; ++c)
            disk.put(u"/o/Personal/Char0%1CapElite.txt"_s.arg(c),
                     lines(6, [](int) { return "00" + QByteArray::number(number(10, 29)); }));
        disk.put(u"/o/Personal/Notes.txt"_s, lines(8, [](int) {
                     return word() + '\t' + word() + '\t' + QByteArray::number(number(0, 300)) + "\t50\t" +
                            (number(0, 1) ? "1" : "3") + '\t' + QByteArray::number(number(1, 2));
                 }));
        loadTables(state, files);
    }

    // What a failure shows.
    QByteArray text() const {
        QByteArray all;
        for (const char* folder : {"/o/Campaign.01.Ash/", "/o/Campaign.03.Bay/", "/o/Personal/"})
            for (const QString& name : disk.list(QString::fromLatin1(folder)))
                all += "== " + name.toLatin1() + '\n' + disk.content(QString::fromLatin1(folder) + name);
        return all;
    }

    void fill(const QString& folder) {
        const int first = folder.contains(u"01"_s) ? 10 : 20;
        disk.put(folder + u"Regions.txt"_s, "1\tCoast\r\n2\tHills\r\n");
        disk.put(folder + u"Zones.txt"_s,
                 "5\t1\t2\t1\t9\t9\tMirefen\r\n6\t1\t2\t1\t9\t9\tBarrow\r\n7\t2\t2\t1\t9\t9\tTarn\r\n");
        disk.put(folder + u"EliteList.txt"_s, lines(9, [&](int i) {
                     return QByteArray::number(first + i) + '\t' + QByteArray::number(number(1, 2)) + '\t' +
                            word() + '\t' + (number(0, 1) ? "Fire" : "Song") +
                            "\tSpell\t0\t0\t5\t1\t10\tText";
                 }));
        disk.put(folder + u"EliteLocations.txt"_s,
                 ";[Version]2.0\r\n" + lines(14, [&](int) {
                     return QByteArray::number(number(0, 3) ? first + number(1, 9) : 0) + '\t' + place() +
                            '\t' + word() + "\t\t" + zone();
                 }));
        disk.put(folder + u"Greens.txt"_s, lines(9, [](int i) {
                     return word() + ' ' + QByteArray::number(i) + '\t' + word() + '\t' + word() + '\t' +
                            word();
                 }));
        disk.put(folder + u"Treasures.txt"_s, lines(6, [](int) {
                     return word() + '\t' + QByteArray::number(number(0, 300)) + "\t80\t" +
                            QByteArray::number(number(1, 2)) + '\t' + zone();
                 }));
    }
};

Place anyPlace(const ProgramState& state) {
    static constexpr int campaigns[] = {-1, 0, 1, 3};
    Place place{campaigns[number(0, 3)], 0, 0};
    if (place.campaign > 0)
        place.region = number(0, 2);
    if (place.region > 0)
        place.zoneIndex =
            number(0, static_cast<int>(zoneEntries(state, place.campaign, place.region).size()) - 1);
    return place;
}

bool lies(const ProgramState& state, const Place& place, const MapLocation& at) {
    const int zone = zoneIdentifier(state, place);
    return (place.campaign < 0 || at.Campaign == place.campaign) &&
           (place.region == 0 || at.Region == place.region) && (zone == 0 || at.Zone == zone);
}

bool says(const QString& text, const QString& wanted) {
    return text.contains(wanted, Qt::CaseInsensitive);
}

QString typed() {
    return number(0, 2) ? QString() : QString::fromLatin1(word().left(number(1, 4)));
}

std::vector<int> numbers(const std::vector<ListEntry>& entries) {
    std::vector<int> found;
    for (const ListEntry& entry : entries)
        found.push_back(entry.data);
    return found;
}

std::vector<int> sorted(std::vector<int> found) {
    std::sort(found.begin(), found.end());
    return found;
}

// What the plain rule lets through, of records 1..highest.
std::vector<int> those(int highest, const std::function<bool(int)>& passes) {
    std::vector<int> found;
    for (int i = 1; i <= highest; ++i)
        if (passes(i))
            found.push_back(i);
    return found;
}

RC_GTEST_PROP(Filters, skillsAreThoseWithABossThatPasses, ()) {
    const RandomWorld world;
    EliteChoice choice;
    choice.place = anyPlace(world.state);
    choice.profession = number(0, 2);
    choice.secondary = number(0, 2);
    choice.character = number(0, 2);
    choice.uncapturedOnly = number(0, 1);
    choice.bossText = typed();
    choice.nameText = typed();
    const auto& skills = world.state.EliteSkills;
    const auto captured = [&](const EliteSkill& skill) {
        return choice.character ? skill.capturedBy(choice.character)
                                : skill.capturedBy(1) || skill.capturedBy(2);
    };
    const auto expected = those(skills.highest(), [&](int id) {
        const EliteSkill& skill = skills[id];
        const bool any =
            std::any_of(skill.Locations.begin(), skill.Locations.end(), [&](const MapLocation& at) {
                const bool everybodys = choice.place.campaign == 0 && skill.Campaign == 0;
                return (everybodys || lies(world.state, choice.place, at)) && says(at.Boss, choice.bossText);
            });
        const bool profession = choice.profession == 0 || skill.Profession == choice.profession ||
                                (choice.secondary != 0 && skill.Profession == choice.secondary);
        return any && profession && says(skill.Name, choice.nameText) &&
               !(choice.uncapturedOnly && captured(skill));
    });
    RC_LOG() << "place " << choice.place.campaign << ' ' << choice.place.region << ' '
             << choice.place.zoneIndex << ", profession " << choice.profession << ' ' << choice.secondary
             << ", character " << choice.character << ' ' << choice.uncapturedOnly << ", boss '"
             << choice.bossText.toStdString() << "', name '" << choice.nameText.toStdString() << "'\n"
             << world.text().toStdString();
    RC_ASSERT(sorted(numbers(eliteEntries(world.state, choice))) == expected);
}

RC_GTEST_PROP(Filters, greensNotesAndChestsAreThoseThatSayWhatWasTyped, ()) {
    const RandomWorld world;
    const ProgramState& state = world.state;
    const Place place = anyPlace(state);
    const QString name = typed().trimmed(), text = typed().trimmed();
    RC_ASSERT(
        sorted(numbers(noteEntries(state, {place, name, text}))) == those(state.Notes.count(), [&](int i) {
            const Note& note = state.Notes[i];
            Place inRegion = place;
            inRegion.zoneIndex = 0;
            return lies(state, inRegion, note.At) && says(note.ShortDesc, name) && says(note.Body, text);
        }));
    RC_ASSERT(numbers(treasureEntries(state, {place})) == those(state.Treasures.count(), [&](int i) {
                  return lies(state, place, state.Treasures[i].Location);
              }));
    for (const int green : numbers(greenEntries(state, {.place = place, .nameText = name}))) {
        RC_ASSERT(says(state.GreenItems[green].Name, name));
        const MapLocation* at = greenLocation(state, green);
        RC_ASSERT(at && lies(state, place, *at));
    }
}

// The first of all areas, in their order.
const HitArea* plainly(std::span<const HitArea> areas, QPoint at) {
    const auto found =
        std::find_if(areas.begin(), areas.end(), [at](const HitArea& area) { return area.holds(at); });
    return found == areas.end() ? nullptr : &*found;
}

RC_GTEST_PROP(Agreement, theMouseFindsWhatIsDrawnAndListed, ()) {
    const RandomWorld world;
    const ProgramState& state = world.state;
    const MapShown shown{number(0, 1) ? 1 : 3, number(1, 2), 0}; // the mouse finds what the zone hides, too
    const std::vector<int> listed = numbers(eliteEntries(state, {.place = {shown.campaign, 0, 0}}));
    const HitIndex index(eliteHitAreas(state, listed, {}, shown));
    size_t boxes = 0;
    for (const int id : listed)
        for (const MapLocation& at : state.EliteSkills[id].Locations) {
            if (!shown.shows(at.Campaign, at.Region))
                continue;
            ++boxes;
            const HitArea* hit = index.first({at.X, at.Y});
            RC_ASSERT(hit && hit == plainly(index.areas(), {at.X, at.Y}));
            RC_ASSERT(std::find(listed.begin(), listed.end(), hit->id) != listed.end());
        }
    RC_ASSERT(index.areas().size() == boxes);
    for (const Marker& marker : eliteMarkers(state, listed, shown, {}))
        RC_ASSERT(marker.right - marker.left == 2 * bossReach && marker.bottom - marker.top == 2 * bossReach);
    const QPoint anywhere(number(-10, 320), number(-10, 320));
    RC_ASSERT(index.first(anywhere) == plainly(index.areas(), anywhere));
}

} // namespace
} // namespace orvinel
