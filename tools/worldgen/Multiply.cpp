#include "WorldSource.h"

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

// Which copy of a record is made, and by how much the zones' numbers and indexes move from copy to copy.
struct Copy {
    int number = 0; // from 1
    int zones = 0;

    QString named(const QString& name) const { return name + u' ' + QString::number(number + 1); }
    int numbered(int original) const { return original + number * numberStep; }
    int movedZone(int zone) const { return zone + number * zones; }
    QString pet(const QString& idText) const {
        return u"%1"_s.arg(numbered(idText.toInt()), 4, 10, QLatin1Char('0'));
    }
};

void change(SourceZone& zone, const Copy& copy) {
    zone.id = copy.movedZone(zone.id);
    zone.name = copy.named(zone.name);
    zone.painted = false;
}

void change(SourceSkill& skill, const Copy& copy) {
    skill.pictureOf = skill.id;
    skill.id = copy.numbered(skill.id);
    skill.name = copy.named(skill.name);
}

void change(SourceBoss& boss, const Copy& copy) {
    const bool generous = carriesGreens(boss);
    boss.skill = boss.skill == 0 ? 0 : copy.numbered(boss.skill);
    boss.name = copy.named(boss.name);
    boss.zone = copy.movedZone(boss.zone);
    if (generous && !carriesGreens(boss)) {
        // The original is spared by its name: nothing may keep the copy from dropping the copied green items.
        boss.code.clear();
        boss.note.clear();
    }
}

void change(SourceCollector& collector, const Copy& copy) {
    collector.id = copy.numbered(collector.id);
    collector.name = copy.named(collector.name);
    collector.zone = collector.zone < 0 ? collector.zone : copy.movedZone(collector.zone);
}

void change(SourceGreen& green, const Copy& copy) {
    green.name = copy.named(green.name);
    green.boss = copy.named(green.boss);
}

void change(SourceChest& chest, const Copy& copy) {
    chest.name = copy.named(chest.name);
    chest.zone = copy.movedZone(chest.zone);
}

void change(SourcePet& pet, const Copy& copy) {
    pet.pictureOf = pet.idText;
    pet.idText = copy.pet(pet.idText);
    pet.name = copy.named(pet.name);
}

void change(SourcePetPlace& place, const Copy& copy) {
    place.pet = copy.pet(place.pet);
    place.zone = copy.movedZone(place.zone);
}

// Appends `factor` - 1 changed copies of every record.
template <typename Record>
void multiply(std::vector<Record>& records, int factor, int zones) {
    const std::size_t originals = records.size();
    records.reserve(originals * std::size_t(factor));
    for (int number = 1; number < factor; ++number) {
        for (std::size_t i = 0; i < originals; ++i) {
            Record record = records[i];
            change(record, {number, zones});
            records.push_back(record);
        }
    }
}

} // namespace

WorldSource multiplied(const WorldSource& source, int factor) {
    WorldSource world = source;
    const int zones = int(source.zones.size());
    multiply(world.zones, factor, zones);
    multiply(world.skills, factor, zones);
    multiply(world.bosses, factor, zones);
    multiply(world.collectors, factor, zones);
    multiply(world.greens, factor, zones);
    multiply(world.chests, factor, zones);
    multiply(world.pets, factor, zones);
    multiply(world.petPlaces, factor, zones);
    return world;
}

} // namespace worldgen
