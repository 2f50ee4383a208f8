#include "layers/modTreasures.h"

#include "base/TextFile.h"
#include "layers/Content.h"
#include "layers/ListedMarks.h"

#include <algorithm>
#include <limits>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

// Written out: chests are looked for in this folder only, whatever other folder has the number 3.
constexpr QLatin1String treasuresFile("Campaign.03.Sunhollow/Treasures.txt");

std::optional<Treasure> readTreasure(TextFile& file) {
    using Limits = std::numeric_limits<int>;
    const auto x = file.integer(1, "x", -largestCoordinate, largestCoordinate);
    const auto y = file.integer(2, "y", -largestCoordinate, largestCoordinate);
    const auto region = file.integer(3, "region", 0, 255);
    const auto zone = file.whole(4, "zone", Limits::min(), Limits::max());
    if (!x || !y || !region || !zone)
        return std::nullopt;
    Treasure treasure;
    treasure.Name = file.text(0);
    treasure.Location.Campaign = treasureCampaign;
    treasure.Location.Region = *region;
    treasure.Location.Zone = *zone;
    treasure.Location.placeAt(*x, *y, treasureReach);
    return treasure;
}

constexpr auto eachPlace = [](const Treasure& treasure, const auto& visit) { visit(0, treasure.Location); };

} // namespace

void LoadTreasures(Content& state, const Disk& disk, Complaints* complaints) {
    state.Treasures.clear();
    TextFile file(disk, state.AppPath + treasuresFile, complaints);
    while (file.nextRecord()) {
        if (!file.hasFields(5))
            continue;
        if (state.Treasures.count() == largestIdentifier) {
            file.skip({}, u"more than %1 chests"_s.arg(largestIdentifier));
            continue;
        }
        if (auto treasure = readTreasure(file)) {
            treasure->OpenedOn.resize(static_cast<size_t>(state.Characters.highest()) + 1);
            state.Treasures.append(std::move(*treasure));
        }
    }
}

std::vector<ListEntry> treasureEntries(const Content& state, const TreasureChoice& choice) {
    const int zone = zoneIdentifier(state, choice.place);
    std::vector<ListEntry> entries;
    for (int t = 1; t <= state.Treasures.count(); ++t) {
        const Treasure& treasure = state.Treasures[t];
        const MapLocation& at = treasure.Location;
        if (passesPlace(choice.place, zone, at.Campaign, at.Region, at.Zone))
            entries.push_back(
                {treasure.Name + u" ("_s + ZoneName(state, at.Campaign, at.Region, at.Zone) + u')', t});
    }
    return entries;
}

std::vector<Marker> treasureMarkers(const Content& state, ListedItems listed, const MapShown& shown) {
    return markersOf(state.Treasures, listed, shown, eachPlace, [&](const Treasure&, const MapLocation& at) {
        return shown.passesZone(at.Zone) ? std::optional(Sprite::Treasure) : std::nullopt;
    });
}

std::vector<HitArea> treasureHitAreas(const Content& state, ListedItems listed, const MapShown& shown) {
    return hitAreasOf(state.Treasures, listed, shown, eachPlace);
}

TreasureTooltip treasureTooltip(const Content& state, int index) {
    const Treasure& treasure = state.Treasures[index];
    TreasureTooltip tooltip{
        treasure.Name, state.text(Caption::OpenedBy), state.text(Caption::OpenedWhen), {}, {}};
    for (int c = 1; c <= state.Characters.highest(); ++c) {
        const TreasureTooltip::Line line{state.Characters[c], treasure.openedBy(c)};
        // Nameless characters leave a gap between the lines, but none above the first.
        if (!tooltip.lines.empty() || !line.character.isEmpty() || line.openedOn.isValid())
            tooltip.lines.push_back(line);
    }
    if (tooltip.lines.empty())
        tooltip.instead =
            state.text(state.Characters.highest() == 0 ? Caption::NoCharacters : Caption::Nobody);
    return tooltip;
}

QString padBetween(const QString& left, const QString& right, int target,
                   const std::function<int(const QString&)>& width) {
    const auto padded = [&](int blanks) { return left + QString(blanks, u' ') + right; };
    // A blank is at least a pixel wide in every font, so more blanks than pixels are never needed.
    const int most = std::max(1, target);
    int tooFew = 0;
    int enough = 1;
    while (enough < most && width(padded(enough)) < target) {
        tooFew = enough;
        enough = std::min(most, enough * 2);
    }
    while (enough - tooFew > 1) {
        const int middle = tooFew + (enough - tooFew) / 2;
        if (width(padded(middle)) < target)
            tooFew = middle;
        else
            enough = middle;
    }
    return padded(enough);
}

} // namespace orvinel
