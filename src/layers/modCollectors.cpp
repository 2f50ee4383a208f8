#include "layers/modCollectors.h"

#include "app/modUtility.h"
#include "base/TextFile.h"
#include "base/TextSearch.h"
#include "layers/Content.h"
#include "layers/ListedMarks.h"
#include "world/modCampaigns.h"
#include "world/modProfessions.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <unordered_set>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// Loading

// Of a collector: no growing in steps for most of them.
constexpr size_t usualObjects = 4;
constexpr size_t usualObjectsText = 240;

using RequestTypeSet = std::unordered_set<std::string>; // folded texts of those that are in the table

class CollectorReader {
  public:
    CollectorReader(Content& state, TextFile& file, RequestTypeSet& requestTypes)
        : state_(state), file_(file), requestTypes_(requestTypes) {}

    void readAll() {
        while (file_.nextRecord()) {
            if (isBlank(file_.line()))
                continue;
            if (!readBlock())
                passOverBlock();
        }
    }

  private:
    // False when the header cannot be used.
    bool readBlock() {
        if (!file_.hasFields(3))
            return false;
        const auto id = file_.integer(0, "collector", 0, largestIdentifier);
        const auto level = file_.fieldCount() == 4 ? file_.integer(3, "level", 0, 255) : 0;
        if (!id || !level)
            return false;
        Collector collector;
        collector.Exists = true;
        collector.Objects.reserve(usualObjects);
        collector.FoldedObjects.reserve(usualObjectsText);
        collector.Name = file_.text(1);
        collector.IsArmour = file_.field(2) == u"1";
        collector.Level = *level;
        if (!file_.nextLine())
            return complainOfEnd();
        collector.LocationText = file_.text(file_.line());
        if (!file_.nextLine())
            return complainOfEnd();
        collector.setRequest(file_.text(file_.line()));
        addRequestType(collector);
        readObjects(collector);
        state_.Collectors.grow(*id) = std::move(collector);
        return true;
    }

    bool complainOfEnd() {
        file_.skip(u"collector"_s, u"the file ends before the request"_s);
        return false;
    }

    void readObjects(Collector& collector) {
        while (file_.nextLine() && !file_.line().isEmpty()) {
            if (isBlank(file_.line()) || !file_.hasFields(2))
                continue;
            const auto mask = file_.integer(1, "hand mask", -32768, 32767);
            if (!mask)
                continue;
            if (++objects_ > largestIdentifier) {
                file_.skip({}, u"more than %1 rewards"_s.arg(largestIdentifier));
                continue;
            }
            // Without a name there would be nothing to choose in a list; without rewards it is in none.
            if (!collector.Name.isEmpty())
                collector.addObject(file_.text(0), *mask, TextLines(file_.rest(2)));
        }
    }

    // Else the lines of a block without a header would be taken for headers themselves.
    void passOverBlock() {
        while (file_.nextLine() && !file_.line().isEmpty()) {
        }
    }

    // The words behind the first blank.
    void addRequestType(const Collector& collector) {
        const std::string& asked = collector.FoldedRequest;
        if (!requestTypes_.insert(asked.substr(asked.find(' ') + 1)).second)
            return;
        const QString& request = collector.Request;
        state_.RequestTypes.append({request.sliced(request.indexOf(u' ') + 1), collector.Level});
    }

    Content& state_;
    TextFile& file_;
    int objects_ = 0;
    RequestTypeSet& requestTypes_;
};

void loadLocations(Content& state, int campaign, const Disk& disk, Complaints* complaints) {
    using Limits = std::numeric_limits<int>;
    TextFile file(disk, campaignFolder(state, campaign) + u"/CollectorsLocations.txt"_s, complaints);
    while (file.nextLine()) {
        if (!file.hasFields(5))
            continue;
        const auto id = file.integer(0, "collector", 0, largestIdentifier);
        const auto region = file.integer(1, "region", 0, 255);
        const auto x = file.integer(2, "x", -largestCoordinate, largestCoordinate);
        const auto y = file.integer(3, "y", -largestCoordinate, largestCoordinate);
        const auto zone = file.whole(4, "zone", Limits::min(), Limits::max());
        if (!id || !region || !x || !y || !zone)
            continue;
        if (!state.Collectors.has(*id) || !state.Collectors[*id].Exists) {
            file.skip(u"collector"_s, u"no collector %1"_s.arg(*id));
            continue;
        }
        MapLocation& at = state.Collectors[*id].Location;
        at.Campaign = campaign;
        at.Region = *region;
        at.Zone = *zone;
        at.placeAt(*x, *y, bossReach);
    }
}

std::vector<int> orderByName(const IndexedTable<Collector>& collectors) {
    std::vector<QString> names;
    for (int id = 1; id <= collectors.highest(); ++id)
        names.push_back(collectors[id].Name);
    return alphabeticalOrderFrom1(names);
}

// Searching

// A choice made ready for looking at many collectors.
struct Search {
    const CollectorChoice& choice;
    int zone;
    std::string request;
    std::string text;

    Search(const CollectorChoice& asked, int zoneIdentifier)
        : choice(asked), zone(zoneIdentifier), request(folded(asked.request.value_or(QString()))),
          text(folded(asked.searchText)) {}

    bool admits(const Collector& collector) const {
        const MapLocation& at = collector.Location;
        return at.placed() &&
               (choice.level == CollectorChoice::anyLevel || collector.Level == choice.level) &&
               passesPlace(choice.place, zone, at.Campaign, at.Region, at.Zone) && admitsZone(at) &&
               admitsKind(collector) && occursIn(collector.FoldedRequest, request) &&
               admitsObjects(collector);
    }

    bool admits(const Collector& collector, const CollectorObject& object) const {
        if ((choice.handMask & object.HandMask) == 0)
            return false;
        const std::string_view all = collector.FoldedObjects;
        const std::string_view stats = between(all, object.FoldedStats, object.FoldedEnd);
        if (!choice.attributeWords.empty() &&
            (stats.empty() || !ContainsAnyWord(stats, choice.attributeWords)))
            return false;
        return occursIn(between(all, object.FoldedName, object.FoldedEnd), text);
    }

  private:
    static std::string_view between(std::string_view all, int begin, int end) {
        return all.substr(static_cast<size_t>(begin), static_cast<size_t>(end - begin));
    }

    // A zone with the identifier 0 is a choice too.
    bool admitsZone(const MapLocation& at) const { return choice.place.zoneIndex == 0 || at.Zone == zone; }

    bool admitsKind(const Collector& collector) const {
        return choice.kind == CollectorChoice::Kind::All ||
               collector.IsArmour == (choice.kind == CollectorChoice::Kind::Armour);
    }

    // Most collectors fall at the one search through all their texts.
    bool admitsObjects(const Collector& collector) const {
        return occursIn(collector.FoldedObjects, text) &&
               std::any_of(collector.Objects.begin(), collector.Objects.end(),
                           [&](const CollectorObject& object) { return admits(collector, object); });
    }
};

constexpr auto eachPlace = [](const Collector& collector, const auto& visit) {
    visit(0, collector.Location);
};

QString statsText(const std::vector<QString>& stats) {
    QString text;
    for (size_t m = 0; m < stats.size(); ++m) {
        if (stats[m].trimmed().isEmpty())
            continue;
        text += u"- "_s + stats[m];
        if (m + 1 < stats.size())
            text += u"\r\n"_s;
    }
    return text;
}

} // namespace

// Records own their lists from the start, so a number that no line fills has empty ones and the tables need
// no pass that makes them so after loading.
void LoadCollectors(Content& state, const Disk& disk, Complaints* complaints) {
    state.Collectors.reset();
    state.CollectorTexts.clear();
    state.RequestTypes.clear();
    RequestTypeSet requestTypes;
    for (int n = 0; n <= state.Campaigns.highest(); ++n) {
        TextFile file(disk, campaignFolder(state, n) + u"/Collectors.txt"_s, complaints,
                      &state.CollectorTexts);
        CollectorReader(state, file, requestTypes).readAll();
    }
    state.CollectorOrder = orderByName(state.Collectors);
}

void LoadCollectorLocations(Content& state, const Disk& disk, Complaints* complaints) {
    for (int n = 0; n <= state.Campaigns.highest(); ++n)
        loadLocations(state, n, disk, complaints);
}

// Looks through the records in the order in which they lie in memory, which is several times as fast, and
// only then walks the list's order.
std::vector<ListEntry> collectorEntries(const Content& state, const CollectorChoice& choice) {
    const Search search(choice, zoneIdentifier(state, choice.place));
    std::vector<bool> admitted;
    admitted.reserve(state.CollectorOrder.size() + 1);
    for (const Collector& collector : state.Collectors)
        admitted.push_back(search.admits(collector));
    std::vector<ListEntry> entries;
    for (const int id : state.CollectorOrder)
        if (admitted[static_cast<size_t>(id)])
            entries.push_back({state.Collectors[id].Name, id});
    return entries;
}

std::vector<ListEntry> requestTypeEntries(const Content& state, int level) {
    std::vector<ListEntry> entries;
    for (int i = 1; i <= state.RequestTypes.count(); ++i)
        if (level == CollectorChoice::anyLevel || state.RequestTypes[i].Level == level)
            entries.push_back({state.RequestTypes[i].Text, i});
    sortAlphabetically(entries);
    entries.insert(entries.begin(), {pinnedText(state.text(Caption::All)), 0});
    return entries;
}

std::vector<Marker> collectorMarkers(const Content& state, ListedItems listed, const MapShown& shown) {
    return markersOf(state.Collectors, listed, shown, eachPlace,
                     [&](const Collector& collector, const MapLocation& at) {
                         const Sprite sprite = collector.IsArmour ? Sprite::CollArmature : Sprite::CollArmi;
                         return shown.passesZone(at.Zone) ? std::optional(sprite) : std::nullopt;
                     });
}

std::vector<HitArea> collectorHitAreas(const Content& state, ListedItems listed, const MapShown& shown) {
    return hitAreasOf(state.Collectors, listed, shown, eachPlace);
}

CollectorTooltip collectorTooltip(const Content& state, int id, const CollectorChoice& choice) {
    const Collector& collector = state.Collectors[id];
    const Search search(choice, 0);
    CollectorTooltip tooltip{collector.Name, collector.Request, collector.LocationText, {}};
    for (const CollectorObject& object : collector.Objects)
        tooltip.objects.push_back({object.Name, statsText(object.Stats), search.admits(collector, object)});
    return tooltip;
}

} // namespace orvinel
