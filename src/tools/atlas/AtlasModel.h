#pragma once

#include "world/Marker.h"

#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace orvinel {

struct ProgramState;

// What the pages show, in the order in which they show it. The pages and the scripts' data are made from the
// same tables, so that they cannot disagree.

// The layers that a reader switches, in drawing order.
enum class AtlasLayer { Zones, Bosses, Greens, Collectors, Chests, Pets, Notes, Count };
inline constexpr auto atlasLayers =
    std::array{AtlasLayer::Zones,  AtlasLayer::Bosses, AtlasLayer::Greens, AtlasLayer::Collectors,
               AtlasLayer::Chests, AtlasLayer::Pets,   AtlasLayer::Notes};

// A headed part of what stands in a place's window.
struct AtlasPart {
    enum class Kind { Skill, Green, Reward, Text };
    Kind kind = Kind::Text;
    QString heading;
    QString picture; // below the atlas's folder; empty: none
    QStringList lines;
    std::vector<std::pair<QString, QString>> facts; // name, value

    bool operator==(const AtlasPart&) const = default;
};

// A marker of a region with what its window says.
struct AtlasPlace {
    AtlasLayer layer = AtlasLayer::Zones;
    int x = 0; // pixels of the region's picture
    int y = 0;
    int reach = 0; // pixels from the marker's centre to its edges; 0 of zones
    QString name;
    QString zone;                 // where it lies; empty: not told
    QString code;                 // in a boss's box
    Colour fill = 0;              // of a boss's box
    std::optional<Sprite> sprite; // its picture; a zone without one shows its name alone
    int anchorX = 0;              // the place inside that picture, pixels
    int anchorY = 0;
    std::vector<AtlasPart> parts;
    QString won; // who captured its skill or opened it; empty: nobody, or the atlas is nobody's

    bool has(AtlasPart::Kind kind) const;
};

struct AtlasRegion {
    int campaign = 0;
    int region = 0;
    QString name;
    QString campaignName;
    QString picture; // full path of the JPEG; empty: none
    std::vector<AtlasPlace> places;

    QString key() const { return QStringLiteral("%1.%2").arg(campaign).arg(region); }
};

// A picture to be copied beside the pages.
struct AtlasPicture {
    QString source; // full path
    QString target; // below the atlas's folder
};

struct Atlas {
    std::vector<AtlasRegion> regions; // in the menus' order; by key, those of one campaign together
    std::vector<AtlasPart> homeless;  // skills that no boss is known to carry
    std::vector<AtlasPicture> pictures;
};

struct AtlasChoice {
    int character = 0; // whose captures and chests are written in; 0: nobody's
    bool notes = false;
};

// `pictureExists` tells whether there is a file at a full path.
Atlas makeAtlas(const ProgramState& state, const AtlasChoice& choice,
                const std::function<bool(const QString&)>& pictureExists);

// The layer's caption in the player's language.
QString layerName(const ProgramState& state, AtlasLayer layer);

} // namespace orvinel
