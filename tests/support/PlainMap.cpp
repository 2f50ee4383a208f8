#include "support/PlainMap.h"

#include "app/ProgramState.h"
#include "layers/modCollectors.h"
#include "layers/modElite.h"
#include "layers/modGreenies.h"
#include "layers/modNotes.h"
#include "layers/modPets.h"
#include "layers/modTreasures.h"
#include "ui/platform/Drawing.h"
#include "ui/platform/Fonts.h"

namespace orvinel {

namespace {

template <typename Table>
std::vector<int> everything(const Table& table, int highest) {
    std::vector<int> all;
    for (int i = 1; i <= highest; ++i)
        if (table.has(i))
            all.push_back(i);
    return all;
}

} // namespace

std::vector<Marker> allMarkers(const ProgramState& tables, const MapShown& shown, const QString& boss) {
    const std::vector<int> skills = everything(tables.EliteSkills, tables.EliteSkills.highest());
    const std::vector<int> greens = everything(tables.GreenItems, tables.GreenItems.count());
    std::vector<Marker> all = greenMarkers(tables, greens, skills, shown, true);
    const auto add = [&](std::vector<Marker> more) { all.insert(all.end(), more.begin(), more.end()); };
    add(eliteMarkers(tables, skills, shown, boss));
    add(collectorMarkers(tables, everything(tables.Collectors, tables.Collectors.highest()), shown));
    add(noteMarkers(tables, everything(tables.Notes, tables.Notes.count()), shown));
    add(treasureMarkers(tables, everything(tables.Treasures, tables.Treasures.count()), shown));
    add(petMarkers(tables, everything(tables.Pets, tables.Pets.highest()), shown));
    return all;
}

QImage plainMap(const QImage& picture, ZonesView& zones, const MapShown& shown,
                const std::vector<Marker>& markers, const MarkerArt& art) {
    QImage map = picture.copy();
    zones.drawGround(map, map.rect(), shown);
    Drawing drawing(&map);
    drawing.setFont(arial(points8, true));
    for (const Marker& marker : markers) {
        if (marker.kind == Marker::Kind::Sprite) {
            drawing.painter().drawImage(marker.left, marker.top, art.picture(marker.sprite));
            continue;
        }
        drawing.setFill(marker.fill);
        drawing.box(marker.left, marker.top, marker.right, marker.bottom);
        drawing.print(marker.left + (marker.code.size() == 1 ? 3 : 1), marker.top - 1, marker.code);
    }
    return map;
}

} // namespace orvinel
