#pragma once

#include "base/Colour.h"

#include <QImage>
#include <QRect>
#include <QString>

#include <vector>

namespace orvinel {

// Of the credits and everything else that is written on the empty map.
inline constexpr Colour creamText = 0xCBECF5;

// Prints the credits in cream on what `target` shows. Placement 1: in the bottom right corner, as on the
// empty map; 0: from the top, as in the credits window.
void DrawCreditsList(QImage& target, int placement);

// The same as lines of plain text, for those who have them read out.
QString creditsText();

// Where each of these lines stands in a picture of that width with placement 0: as wide as the picture.
std::vector<QRect> creditsPlaces(int width);

} // namespace orvinel
