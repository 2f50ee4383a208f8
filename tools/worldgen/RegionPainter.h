#pragma once

#include <QImage>
#include <QPoint>
#include <QSize>
#include <QString>

#include <vector>

namespace worldgen {

enum class Theme { Temperate, Desert, Frost, Ash };
enum class SiteRole { Town, Outpost, Mission, Challenge, Area, DungeonEntrance };
enum class SiteNear { Anything, Coast, Lake, River, Ridge, Forest };

struct SiteWish {
    QString name;
    SiteRole role;
    SiteNear near = SiteNear::Anything;
};

struct RegionRecipe {
    quint32 seed;
    QSize size;
    Theme theme;
    int campaign;
    QString title;
    std::vector<SiteWish> sites;
};

struct PaintedRegion {
    QImage picture;            // RGB32, recipe.size
    std::vector<QPoint> sites; // one per wish, in order
    bool land(QPoint p) const;
};

PaintedRegion paintRegion(const RegionRecipe& recipe);
QImage paintSkillIcon(quint32 seed, QRgb professionColour, const QString& kind);
QImage paintPet(quint32 seed, const QString& species);

} // namespace worldgen
