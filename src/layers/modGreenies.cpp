#include "layers/modGreenies.h"

#include "app/modUtility.h"
#include "base/TextFile.h"
#include "layers/Content.h"
#include "world/modCampaigns.h"
#include "world/modProfessions.h"

#include <algorithm>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int barHeight = 3;
// Every location of a boss lists its items: without a bound two long files would multiply each other.
constexpr size_t mostItemsOfBoss = 128;

// The fields from a position on. They are the file's own unless there is something to trim.
TextLines trimmedLines(const TextFile& file, size_t position) {
    QString rest = file.rest(position);
    QString trimmed;
    trimmed.reserve(rest.size());
    for (size_t i = position; i < file.fieldCount(); ++i)
        trimmed.append(u'\t').append(file.field(i).trimmed());
    return TextLines(trimmed.size() == rest.size() ? rest : trimmed);
}

void readGreens(Content& state, TextFile& file) {
    while (file.nextLine()) {
        const QStringView line = file.line().trimmed();
        if (line.isEmpty() || line.startsWith(u';') || !file.hasFields(2))
            continue;
        if (state.GreenItems.count() == largestIdentifier) {
            file.skip({}, u"more than %1 items"_s.arg(largestIdentifier));
            continue;
        }
        std::vector<int>& ofBoss = state.GreensOfBosses[folded(file.field(1).trimmed())];
        if (ofBoss.size() == mostItemsOfBoss) {
            file.skip(u"boss"_s, u"more than %1 items of one boss"_s.arg(mostItemsOfBoss));
            continue;
        }
        GreenItem item;
        item.setTexts(file.text(file.field(0).trimmed()), file.text(file.field(1).trimmed()),
                      trimmedLines(file, 2));
        ofBoss.push_back(state.GreenItems.append(std::move(item)));
    }
}

// The panel's choice, prepared once for all items.
struct Search {
    const GreenChoice& choice;
    int zone;
    std::string name;
    std::string additional;

    Search(const Content& state, const GreenChoice& c)
        : choice(c), zone(zoneIdentifier(state, c.place)), name(folded(c.nameText.trimmed())),
          additional(folded(c.additionalText)) {}

    bool lists(const GreenItem& item, const MapLocation& at) const {
        return passesPlace(choice.place, zone, at.Campaign, at.Region, at.Zone) &&
               item.FoldedName.find(name) != std::string::npos &&
               (additional.empty() || item.FoldedStats.find(additional) != std::string::npos) &&
               (choice.attributeWords.empty() || hasAttribute(item));
    }
    // An empty word would be found even where there is no line at all.
    bool hasAttribute(const GreenItem& item) const {
        return !item.FoldedStats.empty() && ContainsAnyWord(item.FoldedStats, choice.attributeWords);
    }
};

} // namespace

void LoadGreens(Content& state, const Disk& disk, Complaints* complaints) {
    state.GreenItems.clear();
    state.GreenTexts.clear();
    state.GreensOfBosses.clear();
    for (int n = 0; n <= state.Campaigns.highest(); ++n) {
        TextFile file(disk, campaignFolder(state, n) + u"/Greens.txt"_s, complaints, &state.GreenTexts);
        readGreens(state, file);
    }
    std::vector<QString> names;
    for (const GreenItem& item : state.GreenItems)
        names.push_back(item.Name);
    state.GreenOrder = alphabeticalOrderFrom1(names);
}

bool carriesGreens(const MapLocation& at) {
    return ((at.Note.isEmpty() || !at.Note.toLower().startsWith(u"only during")) && at.MarkerCode != u"D") ||
           at.Boss == u"Quillon Brackfin";
}

std::vector<int> LinkGreensToBoss(Content& state, int elite, int location) {
    const MapLocation& at = state.EliteSkills[elite].Locations[location];
    const QStringView name = QStringView(at.Boss).trimmed();
    const auto found =
        state.GreensOfBosses.find(name.size() == at.Boss.size() ? at.FoldedBoss : folded(name));
    if (found == state.GreensOfBosses.end())
        return {};
    for (const int green : found->second) {
        state.GreenItems[green].EliteID = elite;
        state.GreenItems[green].LocationIndex = location;
    }
    return found->second;
}

const MapLocation* greenLocation(const Content& state, int green) {
    if (!state.GreenItems.has(green))
        return nullptr;
    const GreenItem& item = state.GreenItems[green];
    if (item.EliteID < 0 || !state.EliteSkills.has(item.EliteID))
        return nullptr;
    const List1<MapLocation>& locations = state.EliteSkills[item.EliteID].Locations;
    return locations.has(item.LocationIndex) ? &locations[item.LocationIndex] : nullptr;
}

std::vector<ListEntry> greenEntries(const Content& state, const GreenChoice& choice) {
    const Search search(state, choice);
    std::vector<ListEntry> entries;
    for (const int green : state.GreenOrder) {
        const MapLocation* at = greenLocation(state, green);
        if (at && search.lists(state.GreenItems[green], *at))
            entries.push_back({state.GreenItems[green].Name, green});
    }
    return entries;
}

std::vector<Marker> greenMarkers(const Content& state, ListedItems greens, ListedItems elite,
                                 const MapShown& shown, bool eliteShown) {
    std::vector<bool> boxed(static_cast<size_t>(state.EliteSkills.highest()) + 1);
    if (eliteShown) {
        boxed[0] = true;
        for (const int id : elite)
            if (state.EliteSkills.has(id))
                boxed[static_cast<size_t>(id)] = true;
    }
    std::vector<Marker> markers;
    for (const int green : greens) {
        const MapLocation* at = greenLocation(state, green);
        if (!at || !shown.shows(at->Campaign, at->Region) || !shown.passesZone(at->Zone) ||
            at->Greens.empty())
            continue;
        if (boxed[static_cast<size_t>(state.GreenItems[green].EliteID)])
            markers.push_back(
                Marker::box(at->Left, at->Bottom, at->Right, at->Bottom + barHeight, greenItemGreen));
        else
            markers.push_back(Marker::picture(Sprite::GreenMarker, at->Left, at->Top));
    }
    return markers;
}

} // namespace orvinel
