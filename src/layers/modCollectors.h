#pragma once

#include "base/Complaints.h"
#include "base/Disk.h"
#include "base/Listing.h"
#include "layers/Collector.h"
#include "world/HitIndex.h"
#include "world/MapLocation.h"
#include "world/Marker.h"
#include "world/modZones.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace orvinel {

struct Content;

// What the panel asks of the collectors; a default asks nothing.
struct CollectorChoice {
    enum class Kind { All, Objects, Armour }; // Objects: those that are not armour
    static constexpr int anyLevel = 2;
    static constexpr int anyHand = 255; // an object with mask 0 is nobody's all the same

    Place place{};
    int level = anyLevel;
    Kind kind = Kind::All;
    std::optional<QString> request{}; // a request type's text
    QString searchText{};             // as it stands in the field
    int handMask = anyHand;
    std::vector<std::string> attributeWords{}; // folded; empty: no restriction
};

// Also fills RequestTypes and CollectorOrder. Lines of a block whose header cannot be used are passed over.
void LoadCollectors(Content& state, const Disk& disk, Complaints* complaints = nullptr);
void LoadCollectorLocations(Content& state, const Disk& disk, Complaints* complaints = nullptr);

// Entries of lstCollectors, in its alphabetical order; the item data is the collector's ID.
std::vector<ListEntry> collectorEntries(const Content& state, const CollectorChoice& choice);

// Entries of cmbCollReq: pinned, then alphabetical; the item data is the index in RequestTypes, 0 for the
// pinned one. Only types of `level`, or all with CollectorChoice::anyLevel.
std::vector<ListEntry> requestTypeEntries(const Content& state, int level);

std::vector<Marker> collectorMarkers(const Content& state, ListedItems listed, const MapShown& shown);
// id = the collector's ID.
std::vector<HitArea> collectorHitAreas(const Content& state, ListedItems listed, const MapShown& shown);

struct CollectorTooltip {
    struct Object {
        QString name;
        QString stats; // lines that are not blank, "- " before each, CR LF between
        bool highlighted = false;

        bool operator==(const Object&) const = default;
    };
    QString name;
    QString request;
    QString location;
    std::vector<Object> objects;
};

// `id` exists. The objects that the choice asks for are highlighted.
CollectorTooltip collectorTooltip(const Content& state, int id, const CollectorChoice& choice);

} // namespace orvinel
