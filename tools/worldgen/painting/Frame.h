#pragma once

#include "Landscape.h"

#include <QImage>

namespace worldgen {

// Grain of the canvas, darker corners, a frayed dark edge.
void agePicture(QImage& picture, const Landscape& land);
void paintFrame(QImage& picture);
// Where a title in a chancery face covers the fewest sites and the least land; empty without a title.
QRect titleBox(const Landscape& land, const std::vector<QPoint>& sites, const QString& title);
void paintTitle(QImage& picture, const QRect& box, const QString& title);
// A compass in the widest open water, clear of `taken`; none where there is no room. Returns its box.
QRect paintCompass(QImage& picture, const Landscape& land, const std::vector<QRect>& taken);

// Darkens the whole until its mean relative luminance is at most `mean`.
void limitLuminance(QImage& picture, double mean);
// Softly darkens whatever is too bright under the cream letters of a name, centred in `box`, and along
// them.
void shadeName(QImage& picture, const QRect& box, const QString& name);
// Relative luminance of one colour, 0..1.
double luminanceOf(QRgb colour);

} // namespace worldgen
