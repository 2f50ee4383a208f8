#pragma once

#include <QLatin1String>
#include <QPainterPath>

namespace worldgen {

// A shape from a short text: M, L, Q, C and Z with absolute coordinates as in SVG, and besides
//   E cx cy rx ry   an ellipse,
//   U               what follows is united with what came before (at the start understood),
//   X               what follows is cut out of what came before,
//   R n             the piece just written, n times around the origin,
//   F               the piece just written and its mirror image, left and right changed,
//   W n             the line just written, not what it surrounds, n wide.
// A text that breaks these rules gives the shape read so far.
QPainterPath pathFromText(QLatin1String text);

} // namespace worldgen
