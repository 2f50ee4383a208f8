#include "../RegionPainter.h"

#include "Animals.h"
#include "Ground.h"
#include "Maths.h"
#include "PathText.h"
#include "Sprites.h"

#include <QLinearGradient>
#include <QRadialGradient>

namespace worldgen {

namespace {

constexpr QSize kPicture(160, 120);
constexpr int kFine = 3;
constexpr double kHorizon = 74;
constexpr double kGround = 98;

struct Scenery {
    Colour sky, haze, hills, grass;
};

const Scenery& anyScenery(Rng& rng) {
    static constexpr std::array<Scenery, 5> sceneries{
        Scenery{{70, 92, 104}, {150, 142, 112}, {62, 78, 62}, {78, 88, 50}},    // meadow at dawn
        Scenery{{84, 62, 62}, {184, 120, 70}, {82, 60, 52}, {104, 80, 46}},     // dusk on the steppe
        Scenery{{64, 78, 96}, {140, 150, 158}, {84, 96, 108}, {112, 120, 122}}, // winter
        Scenery{{48, 66, 66}, {108, 124, 96}, {40, 62, 50}, {52, 70, 44}},      // wood's edge
        Scenery{{74, 84, 98}, {160, 136, 104}, {88, 78, 70}, {96, 88, 66}}};    // crags
    return rng.pick(sceneries);
}

/// Sky with slow clouds, two lines of hills in the haze, open ground.
QImage paintedBackdrop(const Scenery& scenery, Rng& rng) {
    const Noise noise(rng.next());
    QImage image(kPicture * kFine, QImage::Format_RGB32);
    std::vector<std::array<double, 2>> skyline; // both lines of hills
    for (int x = 0; x < image.width(); ++x) {
        const double u = double(x) / kFine;
        skyline.push_back(
            {54 + 13 * noise.fbm(u / 44 + 7, 3.5, 4), 66 + 10 * noise.fbm(u / 30 + 19, 8.5, 4)});
    }
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const double v = double(y) / kFine;
        for (int x = 0; x < image.width(); ++x) {
            const double u = double(x) / kFine;
            const auto [farHills, nearHills] = skyline[std::size_t(x)];
            const double cloud = v < 80 ? noise.fbm(u / 46, v / 15, 4) : 0;
            Colour colour = mixed(scenery.sky, scenery.haze, smoothStep(8, kHorizon, v + 26 * cloud));
            colour = mixed(colour, mixed(scenery.hills, scenery.haze, 0.55),
                           smoothStep(farHills, farHills + 1, v));
            colour = mixed(colour, mixed(scenery.hills, scenery.haze, 0.15),
                           smoothStep(nearHills, nearHills + 1, v));
            const double blades = noise.fbm(u / 7, v / 3, 3) + 0.6 * noise.at(u / 22, v / 9);
            const Colour ground =
                scenery.grass.times((0.75 + 0.30 * blades) * lerp(1.12, 0.62, smoothStep(kHorizon, 120, v)));
            colour = mixed(colour, ground, smoothStep(kHorizon, kHorizon + 3, v + 2 * noise.at(u / 9, 1.5)));
            const double corner = lengthOf(u / 80 - 1, v / 60 - 1);
            line[x] = rgbOf(colour.times(1.06 - 0.42 * smoothStep(0.6, 1.45, corner)));
        }
    }
    return image;
}

QBrush roundedFur(Colour fur) {
    QLinearGradient light(QPointF(50, 26), QPointF(78, 102));
    light.setColorAt(0, inked(fur.times(1.15, 1.10, 1.02)));
    light.setColorAt(0.40, inked(fur.times(0.68)));
    light.setColorAt(1, inked(fur.times(0.22, 0.22, 0.27)));
    return light;
}

/// The low sun draws a bright line along back and head.
void lightRim(QPainter& painter, const QPainterPath& body, Colour light) {
    painter.save();
    painter.setClipPath(body);
    painter.setBrush(Qt::NoBrush);
    for (const double width : {1.8, 0.7}) {
        painter.setPen(QPen(inked(light, 60), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(body.subtracted(body.translated(0, 1.0)));
    }
    painter.restore();
}

/// Short strokes along the coat, lighter above than below.
void combFur(QPainter& painter, const QPainterPath& body, Colour fur, Rng& rng) {
    painter.save();
    painter.setClipPath(body);
    for (int k = 0; k < 900; ++k) {
        const QPointF at(rng.range(6, 154), rng.range(20, 100));
        const double above = smoothStep(100, 30, at.y());
        const double light = (0.22 + 0.95 * above * above) * rng.range(0.7, 1.4);
        painter.setPen(QPen(inked(fur.times(light), 90), rng.range(0.5, 1.1), Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(at, at + QPointF(rng.range(2, 5), rng.range(0.4, 2.6)));
    }
    painter.restore();
}

class PetPainter {
  public:
    PetPainter(QPainter& painter, const BodyPlan& plan, Colour haze, Rng& rng);
    void paint();

  private:
    static QPainterPath shape(const char* text) { return pathFromText(QLatin1String(text)); }
    void part(const char* text, const QBrush& brush);

    QPainter& p_;
    const BodyPlan& plan_;
    Colour haze_;
    Rng& rng_;
    Colour fur_;
};

PetPainter::PetPainter(QPainter& painter, const BodyPlan& plan, Colour haze, Rng& rng)
    : p_(painter), plan_(plan), haze_(haze), rng_(rng) {
    fur_ = colourOf(plan.fur[rng.whole(0, 2)])
               .times(rng.range(0.9, 1.15), rng.range(0.92, 1.08), rng.range(0.9, 1.1));
}

void PetPainter::part(const char* text, const QBrush& brush) {
    p_.setPen(QPen(QColor(20, 14, 10, 170), 0.9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p_.setBrush(brush);
    p_.drawPath(shape(text));
}

void PetPainter::paint() {
    p_.setPen(Qt::NoPen);
    QRadialGradient shade(QPointF(0, 0), 1);
    shade.setColorAt(0, QColor(8, 8, 6, 170));
    shade.setColorAt(1, QColor(8, 8, 6, 0));
    p_.save();
    p_.translate(86, kGround);
    p_.scale(70, 9);
    p_.setBrush(shade);
    p_.drawEllipse(QPointF(), 1, 1);
    p_.restore();
    part(plan_.far, roundedFur(fur_.times(0.45)));
    const QPainterPath body = shape(plan_.body);
    part(plan_.body, roundedFur(fur_));
    p_.save();
    p_.setClipPath(body);
    p_.setPen(Qt::NoPen);
    p_.setBrush(inked(mixed(fur_, Colour{206, 190, 158}, 0.45), 95));
    p_.drawPath(shape(plan_.pale));
    p_.restore();
    p_.setPen(Qt::NoPen);
    p_.setBrush(inked(fur_.times(0.20), 190));
    p_.drawPath(shape(plan_.dark));
    combFur(p_, body, fur_, rng_);
    lightRim(p_, body, mixed(haze_, Colour{255, 236, 196}, 0.5));
    part(plan_.horn, QBrush(QColor(204, 186, 150)));
    p_.setBrush(QColor(14, 10, 8));
    p_.setPen(Qt::NoPen);
    const QPointF eye(plan_.eyeX, plan_.eyeY);
    p_.drawEllipse(eye, 2.0, 1.8);
    p_.setBrush(QColor(222, 176, 72));
    p_.drawEllipse(eye, 1.25, 1.15);
    p_.setBrush(QColor(10, 8, 6));
    p_.drawEllipse(eye, 0.5, 0.9);
}

void paintTufts(QPainter& painter, Colour grass, Rng& rng) {
    for (int k = 0; k < 60; ++k) {
        const QPointF foot(rng.range(0, 160), rng.range(kGround - 1, 118));
        for (int blade = -2; blade <= 2; ++blade) {
            painter.setPen(QPen(inked(grass.times(rng.range(0.4, 1.15))), 0.7, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(foot, foot + QPointF(blade * rng.range(0.6, 1.3), -rng.range(2, 6)));
        }
    }
}

void paintBorder(QPainter& painter) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(24, 16, 10), 5));
    painter.drawRect(QRectF(0, 0, 160, 120));
    painter.setPen(QPen(QColor(176, 144, 86), 1.2));
    painter.drawRect(QRectF(2.2, 2.2, 155.6, 115.6));
}

} // namespace

QImage paintPet(quint32 seed, const QString& species) {
    Rng rng(seed * 3ULL + 2);
    const Scenery& scenery = anyScenery(rng);
    QImage image = paintedBackdrop(scenery, rng);
    const auto drawn = [&image](auto draw) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(kFine, kFine);
        draw(painter);
    };
    drawn([&](QPainter& painter) {
        if (rng.chance(0.5)) { // facing right
            painter.translate(kPicture.width(), 0);
            painter.scale(-1, 1);
        }
        PetPainter(painter, bodyPlanFor(species, seed), scenery.haze, rng).paint();
    });
    drawn([&](QPainter& painter) { paintTufts(painter, scenery.grass, rng); });
    image = brushed(image, 2, 0.75);
    drawn(paintBorder);
    return shrunk(image.convertToFormat(QImage::Format_ARGB32_Premultiplied), kFine)
        .convertToFormat(QImage::Format_RGB32);
}

} // namespace worldgen
