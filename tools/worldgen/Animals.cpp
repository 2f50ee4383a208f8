#include "Animals.h"

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

QHash<QString, AnimalPicture> readAnimals(const std::vector<SourceRow>& rows, QStringList& problems) {
    QHash<QString, AnimalPicture> animals;
    for (const SourceRow& row : rows) {
        AnimalPicture& animal = animals[row.section];
        if (row.fields[0] == u"ground") {
            animal.ground = row.fields[1];
            if (!isPetGround(animal.ground))
                problems.append(row.place + u": no such ground: "_s + animal.ground);
            continue;
        }
        bool isColour = false;
        const QRgb colour = row.fields[1].toUInt(&isColour, 16) | 0xFF000000U;
        animal.parts.push_back({row.fields[0], colour, row.fields.value(2)});
        if (!isColour || !isAnimalPartKind(row.fields[0]) || row.fields.size() < 3)
            problems.append(row.place + u": needs a known kind of part, RRGGBB and a shape"_s);
    }
    return animals;
}

} // namespace worldgen
