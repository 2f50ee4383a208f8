#include "layers/EliteSkill.h"

#include "base/TextRules.h"

namespace orvinel {

void EliteSkill::setName(const QString& name) {
    Name = name;
    FoldedName = folded(name);
    Exists = !name.isEmpty();
}

void EliteSkill::setAttribute(const QString& attribute) {
    Attribute = attribute;
    FoldedAttribute = folded(attribute);
}

int EliteSkill::addLocation(MapLocation location) {
    FoldedBosses += location.FoldedBoss;
    FoldedBosses += '\n';
    return Locations.append(std::move(location));
}

} // namespace orvinel
