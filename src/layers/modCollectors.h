#pragma once

#include "base/Complaints.h"
#include "base/Disk.h"
#include "base/Listing.h"
#include "world/HitIndex.h"
#include "world/MapLocation.h"
#include "world/Marker.h"
#include "world/modZones.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace orvinel {

struct ProgramState;

// A reward. Its texts are searched in the collector's FoldedObjects, where the positions below point.
struct CollectorObject {
    QString Name;
    int HandMask = 0; // bits 1, 2, 4, 8
    std::vector<QString> Stats;
    int FoldedName = 0;  // where the folded name begins
    int FoldedStats = 0; // where the folded stat lines begin; equal to FoldedEnd: none that is not blank
    int FoldedEnd = 0;

    bool operator==(const CollectorObject&) const = default;
};

struct Collector {
    bool Exists = false; // a header line defined it
    QString Name;
    bool IsArmour = false;
    int Level = 0; // 0..255
    QString LocationText;
    QString Request; // written by setRequest only
    MapLocation Location;
    std::vector<CollectorObject> Objects; // written by addObject only
    std::string FoldedRequest;
    std::string FoldedObjects; // names and stat lines that are not blank, each ended by 0xFF

    void setRequest(const QString& text);
    void addObject(const QString& name, int handMask, std::vector<QString> stats);

    bool operator==(const Collector&) const = default;
};

struct RequestType {
    QString Text;
    int Level = 0; // of the first collector that asked for it

    bool operator==(const RequestType&) const = default;
};

// What the panel asks of the collectors; a default asks nothing.
struct CollectorChoice {
    enum class Kind { All, Objects, Armour }; // Objects: those that are not armour
    static constexpr int anyLevel = 2;
    static constexpr int anyHand = 255; // an object with mask 0 is nobody's all the same

    Place place;
    int level = anyLevel;
    Kind kind = Kind::All;
    std::optional<QString> request; // a request type's text
    QString searchText;             // as it stands in the field
    int handMask = anyHand;
    std::vector<std::string> attributeWords; // folded; empty: no restriction
};

// Also fills RequestTypes and CollectorOrder. Lines of a block whose header cannot be used are passed over.
void LoadCollectors(ProgramState& state, const Disk& disk, Complaints* complaints = nullptr);
void LoadCollectorLocations(ProgramState& state, const Disk& disk, Complaints* complaints = nullptr);

// Entries of lstCollectors, in its alphabetical order; the item data is the collector's ID.
std::vector<ListEntry> collectorEntries(const ProgramState& state, const CollectorChoice& choice);

// Entries of cmbCollReq: pinned, then alphabetical; the item data is the index in RequestTypes, 0 for the
// pinned one. Only types of `level`, or all with CollectorChoice::anyLevel.
std::vector<ListEntry> requestTypeEntries(const ProgramState& state, int level);

std::vector<Marker> collectorMarkers(const ProgramState& state, ListedItems listed, const MapShown& shown);
// id = the collector's ID.
std::vector<HitArea> collectorHitAreas(const ProgramState& state, ListedItems listed, const MapShown& shown);

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
CollectorTooltip collectorTooltip(const ProgramState& state, int id, const CollectorChoice& choice);

} // namespace orvinel
