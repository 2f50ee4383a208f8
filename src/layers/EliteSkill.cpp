#include "layers/EliteSkill.h"

#include "base/TextRules.h"

namespace orvinel {

namespace {

constexpr size_t usualLocations = 4; // no growing in steps for most skills

} // namespace

void EliteSkill::setName(const QString& name) {
    Name = name;
    FoldedName = folded(name);
    Exists = !name.isEmpty();
}

void EliteSkill::setAttribute(const QString& attribute) {
    Attribute = attribute;
    FoldedAttribute = folded(attribute);
}

int EliteSkill::addLocation(MapLocation&& location) {
    if (Locations.empty())
        Locations.reserve(usualLocations);
    FoldedBosses += location.FoldedBoss;
    FoldedBosses += '\n';
    return Locations.append(std::move(location));
}

} // namespace orvinel
