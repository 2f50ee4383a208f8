#include "WorldSource.h"

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

// Appends `factor` - 1 changed copies of every record.
template <typename Record, typename Change>
void multiply(std::vector<Record>& records, int factor, const Change& change) {
    const std::size_t originals = records.size();
    records.reserve(originals * std::size_t(factor));
    for (int copy = 1; copy < factor; ++copy) {
        for (std::size_t i = 0; i < originals; ++i) {
            Record record = records[i];
            change(record, copy);
            records.push_back(record);
        }
    }
}

QString copyName(const QString& name, int copy) {
    return name + u' ' + QString::number(copy + 1);
}

QString petId(const QString& idText, int copy) {
    return u"%1"_s.arg(idText.toInt() + copy * numberStep, 4, 10, QLatin1Char('0'));
}

} // namespace

WorldSource multiplied(const WorldSource& source, int factor) {
    WorldSource world = source;
    const int zoneCount = int(source.zones.size());
    multiply(world.zones, factor, [&](SourceZone& zone, int copy) {
        zone.id += copy * zoneCount;
        zone.name = copyName(zone.name, copy);
        zone.painted = false;
    });
    multiply(world.skills, factor, [](SourceSkill& skill, int copy) {
        skill.pictureOf = skill.id;
        skill.id += copy * numberStep;
        skill.name = copyName(skill.name, copy);
    });
    multiply(world.bosses, factor, [&](SourceBoss& boss, int copy) {
        boss.skill += boss.skill == 0 ? 0 : copy * numberStep;
        if (boss.name == alwaysGenerous) {
            // Its copies have other names: nothing may keep them from dropping the copied green items.
            boss.code.clear();
            boss.note.clear();
        }
        boss.name = copyName(boss.name, copy);
        boss.zone += copy * zoneCount;
    });
    multiply(world.collectors, factor, [&](SourceCollector& collector, int copy) {
        collector.id += copy * numberStep;
        collector.name = copyName(collector.name, copy);
        collector.zone += collector.zone < 0 ? 0 : copy * zoneCount;
    });
    multiply(world.greens, factor, [](SourceGreen& green, int copy) {
        green.name = copyName(green.name, copy);
        green.boss = copyName(green.boss, copy);
    });
    multiply(world.chests, factor, [&](SourceChest& chest, int copy) {
        chest.name = copyName(chest.name, copy);
        chest.zone += copy * zoneCount;
    });
    multiply(world.pets, factor, [](SourcePet& pet, int copy) {
        pet.pictureOf = pet.idText;
        pet.idText = petId(pet.idText, copy);
        pet.name = copyName(pet.name, copy);
    });
    multiply(world.petPlaces, factor, [&](SourcePetPlace& place, int copy) {
        place.pet = petId(place.pet, copy);
        place.zone += copy * zoneCount;
    });
    return world;
}

} // namespace worldgen
