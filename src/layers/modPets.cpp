#include "layers/modPets.h"

#include "base/TextFile.h"
#include "layers/Content.h"
#include "layers/ListedMarks.h"
#include "world/modCampaigns.h"

#include <algorithm>
#include <limits>

namespace orvinel {

using namespace Qt::Literals::StringLiterals;

namespace {

void loadLocations(Content& state, int campaign, const Disk& disk, Complaints* complaints) {
    using Limits = std::numeric_limits<int>;
    TextFile file(disk, campaignFolder(state, campaign) + u"/PetsLocations.txt"_s, complaints);
    int stored = 0;
    while (file.nextRecord()) {
        if (!file.hasFields(5))
            continue;
        const auto id = file.integer(0, "pet", 0, largestIdentifier);
        const auto region = file.integer(1, "region", 0, 255);
        const auto zone = file.integer(2, "zone", Limits::min(), Limits::max());
        const auto x = file.integer(3, "x", -largestCoordinate, largestCoordinate);
        const auto y = file.integer(4, "y", -largestCoordinate, largestCoordinate);
        if (!id || !region || !zone || !x || !y)
            continue;
        if (!state.Pets.has(*id)) {
            file.skip(u"pet"_s, u"no pet %1"_s.arg(*id));
            continue;
        }
        if (++stored > largestIdentifier) {
            file.skip({}, u"more than %1 places"_s.arg(largestIdentifier));
            continue;
        }
        MapLocation at;
        at.Campaign = campaign;
        at.Region = *region;
        at.Zone = *zone;
        at.placeAt(*x, *y, treasureReach);
        state.Pets[*id].Locations.append(at);
    }
}

// The panel's choice made ready for looking at many locations.
struct Search {
    const Place& place;
    int zone;

    Search(const Content& state, const PetChoice& choice)
        : place(choice.place), zone(zoneIdentifier(state, choice.place)) {}

    bool admits(const MapLocation& at) const {
        return passesPlace(place, zone, at.Campaign, at.Region, at.Zone);
    }
    bool admits(const Pet& pet) const {
        return std::any_of(pet.Locations.begin(), pet.Locations.end(),
                           [&](const MapLocation& at) { return admits(at); });
    }
};

constexpr auto eachPlace = [](const Pet& pet, const auto& visit) {
    for (int k = 1; k <= pet.Locations.count(); ++k)
        visit(k, pet.Locations[k]);
};

} // namespace

void LoadPets(Content& state, const Disk& disk, Complaints* complaints) {
    state.Pets.reset();
    const QString folder = campaignFolder(state, 0);
    TextFile file(disk, folder + u"/PetsList.txt"_s, complaints);
    while (file.nextRecord()) {
        if (!file.hasFields(3))
            continue;
        const auto id = file.integer(0, "pet", 0, largestIdentifier);
        if (!id)
            continue;
        Pet& pet = state.Pets.grow(*id);
        pet = {file.text(1), {}, {}};
        if (isPlainFileName(file.field(0)))
            pet.Picture = folder + u"/imgPets/"_s + file.text(0) + u".jpg"_s;
    }
}

void LoadPetLocations(Content& state, const Disk& disk, Complaints* complaints) {
    for (int n = 0; n <= state.Campaigns.highest(); ++n)
        loadLocations(state, n, disk, complaints);
}

std::vector<ListEntry> petEntries(const Content& state, const PetChoice& choice) {
    const Search search(state, choice);
    std::vector<ListEntry> entries;
    for (int id = 1; id <= state.Pets.highest(); ++id)
        if (search.admits(state.Pets[id]))
            entries.push_back({state.Pets[id].Name, id});
    return entries;
}

std::vector<ListEntry> petLocationEntries(const Content& state, int id, const PetChoice& choice) {
    const Search search(state, choice);
    const auto& locations = state.Pets[id].Locations;
    std::vector<ListEntry> entries;
    for (int k = 1; k <= locations.count(); ++k) {
        const MapLocation& at = locations[k];
        if (search.admits(at))
            entries.push_back({placeName(state, at), k});
    }
    return entries;
}

std::vector<Marker> petMarkers(const Content& state, ListedItems listed, const MapShown& shown) {
    return markersOf(state.Pets, listed, shown, eachPlace, [&](const Pet&, const MapLocation& at) {
        return shown.passesZone(at.Zone) ? std::optional(Sprite::Pet) : std::nullopt;
    });
}

std::vector<HitArea> petHitAreas(const Content& state, ListedItems listed, const MapShown& shown) {
    return hitAreasOf(state.Pets, listed, shown, eachPlace);
}

} // namespace orvinel
