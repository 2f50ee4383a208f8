#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

#include <memory>
#include <vector>

// Painted pictures of the world that is shipped: regions, skills and animals.
//
// Every function here is a pure function of its arguments: the same bytes come out twice and on every
// machine that has the title face. They may be called from several threads at once; a QGuiApplication must
// exist.
namespace worldgen {

enum class Theme { Temperate, Desert, Frost, Ash };
// The lie of the land. Mountains: one great range or two; Hills and Plain: lower and fewer; Fens: flat, wet,
// full of pools; Isles: an archipelago.
enum class Landform { Mountains, Hills, Plain, Fens, Isles };
enum class SiteRole { Town, Outpost, Mission, Challenge, Area, DungeonEntrance };
// What the ground at a site must be. Coast, Lake, River: beside it; Water, Sea: on it; Ridge, Cliffs: under
// the heights; Pass: between them; Forest, Bamboo: in the wood; Open: where no wood and no mountain stands.
enum class SiteNear { Anything, Coast, Lake, River, Ridge, Forest, Pass, Cliffs, Water, Sea, Bamboo, Open };
// What is painted beside the name of a place where nobody lives. Places that have one are looked for where
// the map is emptiest.
enum class Landmark {
    None,
    Stones,
    Windmill,
    Obelisk,
    Barrow,
    Tree,
    Wreck,
    Ruin,
    Tower,
    Bones,
    Vent,
    Ice,
    Lantern,
    Bamboo,
    Palms
};

struct SiteWish {
    QString name; // as the program will write it; its width decides how much dark ground is kept for it
    SiteRole role = SiteRole::Area;
    SiteNear near = SiteNear::Anything; // kept where the land has such a place, else dropped
    bool marked = true;                 // else the name alone stands there, on the very point
    Landmark landmark = Landmark::None;
};

struct RegionRecipe {
    quint32 seed = 1;
    QSize size{1600, 1200}; // pixels; 240..4000 a side
    Theme theme = Theme::Temperate;
    int campaign = 1; // 0..4: building style and season
    QString title;    // written into the picture; empty: none
    std::vector<SiteWish> sites;
    Landform landform = Landform::Mountains;
};

// Of the painted frame along each border of a picture, pixels: no name and no marker lies on it.
inline constexpr int frameWidth = 20;

struct Landscape;

// The ground that the name of a site covers in the program, below its marker.
QRect nameBox(QPoint site, const SiteWish& wish, int campaign);

// The land of a region and the places on it, before any of it is painted.
struct SurveyedRegion {
    // One point per wish, in order: where its village or landmark is painted. At least 60 px apart and 80 px
    // from the border as long as the land has room; a region asked for more sites than fit gets them closer.
    std::vector<QPoint> sites;

    // What the region's name covers; empty where the recipe has none.
    QRect title;

    // Height, water and woods behind the picture. Never null in what surveyRegion returns.
    std::shared_ptr<const Landscape> landscape;

    // Whether the ground at a site is what was asked for.
    bool offers(QPoint site, SiteNear near) const;
    // Solid ground that a marker may stand on: inside the frame, no water, no snow-covered peak.
    bool land(QPoint point) const;
    bool forest(QPoint point) const;
    // 0 at sea level, about 1 on the highest ridge, negative in the sea.
    double height(QPoint point) const;
    // Pixels from a point on land to the nearest sea, lake or frame-side water; 0 on water.
    double distanceToWater(QPoint point) const;
    // Pixels to the middle of the nearest river.
    double distanceToRiver(QPoint point) const;
};

// Raises the land and finds the places: a third of the time that a whole picture takes.
SurveyedRegion surveyRegion(const RegionRecipe& recipe);
// RGB32, as large as the recipe asks. `survey` is the recipe's own.
QImage paintRegion(const RegionRecipe& recipe, const SurveyedRegion& survey);

// A piece of a sign: what it is made of ("steel", "fire", "cloth" for the profession's colour), and its
// shape.
struct SignPart {
    QString material;
    QString shape; // a text for pathFromText, 25 units to each side
};

// A sign, and the words that say how it stands: alone, `small` beside the one before it, `behind` it,
// `two` crossed, a `ring` of six, `left`, `low` ...
struct PlacedSign {
    std::vector<SignPart> parts;
    QStringList manner;
};

struct SkillPicture {
    quint32 seed = 1;
    QRgb professionColour = 0;
    int attribute = 0;             // 0..4: place among those of the profession; 5: none
    std::vector<PlacedSign> signs; // back to front
};

bool isSignMaterial(QStringView name);
bool isSignManner(QStringView word);

// 64 x 64, RGB32: the signs in a frame, on a ground of the profession's colour that tells the attribute.
QImage paintSkillIcon(const SkillPicture& skill);

// A piece of an animal: `coat` is combed, `skin` smooth, `far` in the shade behind, `mark` a stain on the
// last of them, `line` flat; an `eye` has a pupil.
struct AnimalPart {
    QString kind;
    QRgb colour = 0;
    QString shape; // a text for pathFromText, on 160 x 120 with the ground at 98
};

struct AnimalPicture {
    QString ground;
    std::vector<AnimalPart> parts; // back to front
};

bool isAnimalPartKind(QStringView kind);
bool isPetGround(QStringView name);

// 160 x 120, RGB32: the animal on its ground. The seed says which way it looks, and how the clouds lie.
QImage paintPet(quint32 seed, const AnimalPicture& animal);

} // namespace worldgen
