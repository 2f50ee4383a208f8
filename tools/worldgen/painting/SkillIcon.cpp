#include "../RegionPainter.h"

#include <QColor>

namespace worldgen {

QImage paintSkillIcon(quint32, QRgb professionColour, const QString&) {
    QImage icon(64, 64, QImage::Format_RGB32);
    icon.fill(professionColour);
    return icon;
}

QImage paintPet(quint32, const QString&) {
    QImage pet(160, 120, QImage::Format_RGB32);
    pet.fill(QColor(0x40, 0x50, 0x38));
    return pet;
}

} // namespace worldgen
