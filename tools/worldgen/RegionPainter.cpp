#include "RegionPainter.h"

#include <QColor>
#include <QPainter>

namespace worldgen {

namespace {

constexpr int Margin = 110;

QColor ground(Theme theme) {
    switch (theme) {
    case Theme::Desert:
        return QColor(0x6A, 0x54, 0x30);
    case Theme::Frost:
        return QColor(0x48, 0x56, 0x66);
    case Theme::Ash:
        return QColor(0x3A, 0x30, 0x2E);
    case Theme::Temperate:
        break;
    }
    return QColor(0x3C, 0x50, 0x2A);
}

} // namespace

bool PaintedRegion::land(QPoint p) const {
    return picture.rect().adjusted(30, 30, -30, -30).contains(p);
}

PaintedRegion paintRegion(const RegionRecipe& recipe) {
    PaintedRegion region;
    region.picture = QImage(recipe.size, QImage::Format_RGB32);
    region.picture.fill(ground(recipe.theme));
    const int columns = 4;
    const int rows = (int(recipe.sites.size()) + columns - 1) / columns;
    const QSize free = recipe.size - QSize(2 * Margin, 2 * Margin);
    for (int i = 0; i < int(recipe.sites.size()); ++i) {
        const int shift = (i * 37 + int(recipe.seed)) % 60;
        region.sites.emplace_back(Margin + free.width() * (i % columns) / columns + shift,
                                  Margin + free.height() * (i / columns) / std::max(rows, 1) + shift);
    }
    return region;
}

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
