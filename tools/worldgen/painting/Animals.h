#pragma once

#include <QString>

namespace worldgen {

/// How an animal is put together, in a box of 160 x 120 units with the ground at 98, its head to the left.
/// Shapes are texts for pathFromText; an empty one means that the animal has no such part.
struct BodyPlan {
    const char* words; ///< species drawn this way, lower case, each between blanks
    const char* far;   ///< limbs on the side away from the viewer
    const char* body;  ///< everything of the near side, limbs included
    const char* pale;  ///< belly, muzzle or breast
    const char* dark;  ///< markings: mane, mask, stripes, shell plates
    const char* horn;  ///< antlers, tusks, beak, claws
    double eyeX, eyeY;
    unsigned fur[3]; ///< usual colours as RRGGBB
};

/// The plan whose word stands in the species, the last such word deciding; else one chosen by the seed.
const BodyPlan& bodyPlanFor(const QString& species, quint32 seed);

} // namespace worldgen
