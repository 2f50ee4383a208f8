#include "Signs.h"

#include "Colour.h"
#include "PathText.h"

#include <QLinearGradient>
#include <QTransform>

#include <array>

namespace worldgen {

using namespace Qt::Literals::StringLiterals;

namespace {

// What a part of a sign is made of: its colour in the light and in the shade.
struct Material {
    QStringView name;
    QRgb light;
    QRgb deep;
};

constexpr std::array materials{
    Material{u"steel", 0xEEF3F6, 0x6A7888},  Material{u"gold", 0xFFE796, 0x9A6018},
    Material{u"wood", 0xC79A5E, 0x53341C},   Material{u"leather", 0xB07A4C, 0x4A2A18},
    Material{u"bone", 0xFFF8DE, 0xAE9A70},   Material{u"blood", 0xFF6E58, 0x80101A},
    Material{u"fire", 0xFFDC6A, 0xD83A12},   Material{u"ember", 0xFF8A3A, 0x9A2008},
    Material{u"ice", 0xF4FDFF, 0x5FA6D0},    Material{u"water", 0x9FE0F6, 0x1A5598},
    Material{u"poison", 0xE0F672, 0x4E8412}, Material{u"stone", 0xDAD0C2, 0x5E564C},
    Material{u"night", 0x56567C, 0x17172C},  Material{u"violet", 0xDDB0FF, 0x5A2E92},
    Material{u"paper", 0xFFFBEA, 0xC6B48A},  Material{u"white", 0xFFFFFF, 0xC2CCDC},
    Material{u"black", 0x3C3634, 0x0E0A0A},  Material{u"sand", 0xFAE4AE, 0xA27838},
    Material{u"copper", 0xFFC290, 0x8A3E1C}, Material{u"skin", 0xF8D4AE, 0x9A6040},
    Material{u"glass", 0xE4FFF6, 0x4EA49C},  Material{u"rose", 0xFFD0D4, 0xC04A66},
    Material{u"leaf", 0xC6EA78, 0x2E6C24},
};

// The cloth of a sign is paler than the ground it lies on, or it would not be seen.
Material clothOf(QRgb colour) {
    const Colour cloth = colourOf(colour);
    return {u"cloth", rgbOf(mixed(cloth, Colour{255, 255, 255}, 0.45)),
            rgbOf(mixed(cloth, Colour{20, 8, 30}, 0.45))};
}

Material materialNamed(QStringView name, QRgb cloth) {
    const auto* found = std::find_if(materials.begin(), materials.end(),
                                     [&](const Material& known) { return known.name == name; });
    return found == materials.end() ? clothOf(cloth) : *found;
}

struct Placing {
    QStringView word;
    double scale;
    QPointF at;
};

// Where a sign stands that is not alone. The later word of a layer has the last say about the place.
constexpr std::array placings{
    Placing{u"left", 0.60, {-11.5, -3}}, Placing{u"right", 0.60, {11.5, 4}}, Placing{u"up", 0.60, {0, -11}},
    Placing{u"low", 0.64, {0, 9}},       Placing{u"nw", 0.48, {-13, -13}},   Placing{u"ne", 0.48, {13, -13}},
    Placing{u"sw", 0.48, {-13, 13}},     Placing{u"se", 0.48, {13, 13}},     Placing{u"centre", 0.56, {0, 0}},
};

QTransform placed(QPointF at, double scale, double turn = 0) {
    return QTransform().translate(at.x(), at.y()).rotate(turn).scale(scale, scale);
}

std::vector<QTransform> copiesOf(const QStringList& manner) {
    std::vector<QTransform> copies;
    if (manner.contains(u"two"))
        for (const double turn : {-40.0, 40.0})
            copies.push_back(placed({}, 1, turn));
    if (manner.contains(u"three"))
        for (const double turn : {-34.0, 34.0, 0.0})
            copies.push_back(placed({0, 2}, 0.96, turn));
    if (manner.contains(u"trio"))
        for (const QPointF at : {QPointF(0, -11), QPointF(-12.5, 10), QPointF(12.5, 10)})
            copies.push_back(placed(at, 0.52));
    if (manner.contains(u"pair"))
        for (const double side : {-1.0, 1.0})
            copies.push_back(placed({12.0 * side, 0}, 0.62).scale(side, 1));
    if (manner.contains(u"ring"))
        for (int k = 0; k < 6; ++k)
            copies.push_back(QTransform().rotate(60 * k).translate(0, -18.5).scale(0.34, 0.34));
    if (copies.empty())
        copies.emplace_back();
    return copies;
}

QTransform stand(const QStringList& manner, bool hasCompanion) {
    double scale = hasCompanion ? 0.90 : 1;
    QPointF at = hasCompanion ? QPointF(-2, -2) : QPointF();
    if (manner.contains(u"behind")) {
        scale = 1.14;
        at = {};
    }
    if (manner.contains(u"small")) {
        scale = 0.48;
        at = {13, 13};
    }
    for (const QString& word : manner)
        for (const Placing& known : placings)
            if (known.word == word) {
                scale = known.scale;
                at = known.at;
            }
    return placed(at, scale, manner.contains(u"tilted") ? 42 : 0);
}

void outline(QPainter& painter, const QPainterPath& shape, double unit) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(10, 6, 6, 90), 5.5 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(shape.translated(1.2 * unit, 1.8 * unit));
    painter.setPen(QPen(QColor(16, 10, 10, 240), 3 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(shape);
}

void fillPart(QPainter& painter, const QPainterPath& shape, const Material& material) {
    const QRectF box = shape.boundingRect();
    QLinearGradient fill(box.topLeft(), box.bottomRight());
    const Colour light = colourOf(material.light);
    const Colour deep = colourOf(material.deep);
    fill.setColorAt(0, inked(light));
    fill.setColorAt(0.45, inked(mixed(light, deep, 0.35)));
    fill.setColorAt(1, inked(deep));
    painter.setBrush(fill);
    painter.setPen(QPen(inked(deep.times(0.45), 210), 0.7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(shape);
    painter.save(); // light along the upper left edges
    painter.setClipPath(shape);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(inked(mixed(light, Colour{255, 255, 255}, 0.6), 150), 1.4));
    painter.drawPath(shape.translated(0.8, 0.9));
    painter.restore();
}

void paintOne(QPainter& painter, const PlacedSign& placedSign, const QTransform& where, QRgb cloth) {
    painter.save();
    painter.setTransform(where, true);
    const double unit = 1 / std::max(0.6, std::sqrt(std::abs(where.determinant())));
    QPainterPath whole;
    for (const SignPart& part : placedSign.parts)
        whole = whole.united(pathFromText(QLatin1String(part.shape.toLatin1())));
    outline(painter, whole, unit);
    for (const SignPart& part : placedSign.parts)
        fillPart(painter, pathFromText(QLatin1String(part.shape.toLatin1())),
                 materialNamed(part.material, cloth));
    painter.restore();
}

} // namespace

bool isSignMaterial(QStringView name) {
    return name == u"cloth" || std::any_of(materials.begin(), materials.end(),
                                           [&](const Material& known) { return known.name == name; });
}

bool isSignManner(QStringView word) {
    constexpr std::array manners{QStringView(u"two"),    QStringView(u"three"), QStringView(u"trio"),
                                 QStringView(u"pair"),   QStringView(u"ring"),  QStringView(u"small"),
                                 QStringView(u"behind"), QStringView(u"tilted")};
    return std::find(manners.begin(), manners.end(), word) != manners.end() ||
           std::any_of(placings.begin(), placings.end(),
                       [&](const Placing& known) { return known.word == word; });
}

void paintSigns(QPainter& painter, const std::vector<PlacedSign>& signs, QRgb cloth) {
    const bool hasCompanion = std::any_of(signs.begin(), signs.end(), [](const PlacedSign& sign) {
        return sign.manner.contains(u"small") && !sign.manner.contains(u"centre");
    });
    for (const PlacedSign& sign : signs) {
        painter.setOpacity(sign.manner.contains(u"behind") ? 0.72 : 1);
        for (const QTransform& copy : copiesOf(sign.manner))
            paintOne(painter, sign, copy * stand(sign.manner, hasCompanion && &sign == &signs.front()),
                     cloth);
    }
    painter.setOpacity(1);
}

} // namespace worldgen
