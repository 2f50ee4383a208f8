#include "RegionPainter.h"

#include "Colour.h"
#include "Ground.h"
#include "Maths.h"
#include "PathText.h"
#include "PetGround.h"
#include "Sprites.h"

#include <QLinearGradient>
#include <QRadialGradient>

#include <array>

namespace worldgen {

namespace {

constexpr QSize petPicture(160, 120);
constexpr int fineness = 3;

constexpr std::array partKinds{QStringView(u"far"),  QStringView(u"coat"), QStringView(u"skin"),
                               QStringView(u"mark"), QStringView(u"line"), QStringView(u"eye")};

// Lit from above and from the left.
QBrush rounded(const QPainterPath& shape, Colour colour) {
    const QRectF box = shape.boundingRect();
    QLinearGradient light(box.topLeft(), QPointF(box.left() + box.width() * 0.4, box.bottom()));
    light.setColorAt(0, inked(colour.times(1.16, 1.12, 1.06)));
    light.setColorAt(0.5, inked(colour.times(0.88)));
    light.setColorAt(1, inked(colour.times(0.48, 0.47, 0.52)));
    return light;
}

// Short strokes along the coat, lighter above than below.
void combFur(QPainter& painter, const QPainterPath& body, Colour fur, Rng& rng) {
    painter.save();
    painter.setClipPath(body, Qt::IntersectClip);
    const QRectF box = body.boundingRect();
    const int strokes = int(box.width() * box.height() / 14);
    for (int k = 0; k < strokes; ++k) {
        const QPointF at(rng.range(box.left(), box.right()), rng.range(box.top(), box.bottom()));
        const double light = rng.range(0.72, 1.16) * lerp(1.1, 0.62, (at.y() - box.top()) / box.height());
        painter.setPen(QPen(inked(fur.times(light), 80), rng.range(0.5, 1.0), Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(at, at + QPointF(rng.range(1.5, 4), rng.range(0.4, 2.4)));
    }
    painter.restore();
}

class PetPainter {
  public:
    PetPainter(QPainter& painter, Colour haze, Rng& rng) : p_(painter), haze_(haze), rng_(rng) {}
    void paint(const AnimalPicture& animal);

  private:
    void paintShadow();
    void paintPart(const AnimalPart& part);
    void paintSolid(const QPainterPath& shape, Colour colour);
    void paintMark(const QPainterPath& shape, Colour colour);
    void paintEye(const QPainterPath& shape, Colour colour);
    void lightRim(const QPainterPath& body);

    QPainter& p_;
    Colour haze_;
    Rng& rng_;
    QPainterPath lastSolid_; // what marks are painted on
};

void PetPainter::paintShadow() {
    QRadialGradient shade(QPointF(0, 0), 1);
    shade.setColorAt(0, QColor(8, 8, 10, 150));
    shade.setColorAt(1, QColor(8, 8, 10, 0));
    p_.save();
    p_.translate(86, petFeet);
    p_.scale(66, 8);
    p_.setPen(Qt::NoPen);
    p_.setBrush(shade);
    p_.drawEllipse(QPointF(), 1, 1);
    p_.restore();
}

// The low sun draws a bright line along back and head.
void PetPainter::lightRim(const QPainterPath& body) {
    p_.save();
    p_.setClipPath(body, Qt::IntersectClip);
    p_.setBrush(Qt::NoBrush);
    for (const double width : {2.0, 0.8}) {
        p_.setPen(QPen(inked(mixed(haze_, Colour{255, 244, 214}, 0.6), 90), width, Qt::SolidLine,
                       Qt::RoundCap, Qt::RoundJoin));
        p_.drawPath(body.subtracted(body.translated(0, 1.1)));
    }
    p_.restore();
}

void PetPainter::paintSolid(const QPainterPath& shape, Colour colour) {
    p_.setPen(QPen(inked(colour.times(0.25), 220), 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p_.setBrush(rounded(shape, colour));
    p_.drawPath(shape);
    lightRim(shape);
    lastSolid_ = shape;
}

void PetPainter::paintMark(const QPainterPath& shape, Colour colour) {
    p_.save();
    p_.setClipPath(lastSolid_, Qt::IntersectClip);
    p_.setPen(Qt::NoPen);
    p_.setBrush(inked(colour, 205));
    p_.drawPath(shape);
    p_.restore();
}

void PetPainter::paintEye(const QPainterPath& shape, Colour colour) {
    const QRectF box = shape.boundingRect();
    p_.setPen(QPen(QColor(14, 10, 8), 1.4));
    p_.setBrush(inked(colour));
    p_.drawPath(shape);
    p_.setPen(Qt::NoPen);
    p_.setBrush(QColor(10, 8, 6));
    p_.drawEllipse(box.center(), box.width() * 0.22, box.height() * 0.36);
    p_.setBrush(QColor(255, 255, 255, 210));
    p_.drawEllipse(box.center() - QPointF(box.width(), box.height()) * 0.16, 0.5, 0.5);
}

void PetPainter::paintPart(const AnimalPart& part) {
    const QPainterPath shape = pathFromText(QLatin1String(part.shape.toLatin1()));
    const Colour colour = colourOf(part.colour);
    if (part.kind == u"eye") {
        paintEye(shape, colour);
    } else if (part.kind == u"mark") {
        paintMark(shape, colour);
    } else if (part.kind == u"line") {
        p_.setPen(Qt::NoPen);
        p_.setBrush(inked(colour));
        p_.drawPath(shape);
    } else {
        const bool far = part.kind == u"far";
        paintSolid(shape, colour.times(far ? 0.62 : 1));
        if (part.kind == u"coat")
            combFur(p_, shape, colour, rng_);
    }
}

void PetPainter::paint(const AnimalPicture& animal) {
    paintShadow();
    for (const AnimalPart& part : animal.parts)
        paintPart(part);
}

void paintBorder(QPainter& painter) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(24, 16, 10), 5));
    painter.drawRect(QRectF(0, 0, 160, 120));
    painter.setPen(QPen(QColor(176, 144, 86), 1.2));
    painter.drawRect(QRectF(2.2, 2.2, 155.6, 115.6));
}

} // namespace

bool isAnimalPartKind(QStringView kind) {
    return std::find(partKinds.begin(), partKinds.end(), kind) != partKinds.end();
}

bool isPetGround(QStringView name) {
    return petGroundNamed(name) != nullptr;
}

QImage paintPet(quint32 seed, const AnimalPicture& animal) {
    Rng rng(seed * 3ULL + 2);
    const PetGround* named = petGroundNamed(animal.ground);
    const PetGround& ground = named != nullptr ? *named : *petGroundNamed(u"meadow");
    QImage image = brushed(paintedBackdrop(ground, petPicture, fineness, rng), 2, 0.75);
    const auto drawn = [&image](auto draw) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(fineness, fineness);
        draw(painter);
    };
    drawn([&](QPainter& painter) {
        if (rng.chance(0.5)) { // facing right
            painter.translate(petPicture.width(), 0);
            painter.scale(-1, 1);
        }
        PetPainter(painter, ground.haze, rng).paint(animal);
    });
    drawn([&](QPainter& painter) { paintUndergrowth(painter, ground, petPicture, rng); });
    drawn(paintBorder);
    return shrunk(image.convertToFormat(QImage::Format_ARGB32_Premultiplied), fineness)
        .convertToFormat(QImage::Format_RGB32);
}

} // namespace worldgen
