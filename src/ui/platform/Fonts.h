#pragma once

#include <QFont>

#include <future>

namespace orvinel {

// Pixel sizes of the point sizes that the windows are laid out with, at 96 dots per inch.
inline constexpr int points6_75 = 9;
inline constexpr int points7 = 9;
inline constexpr int points8 = 11;
inline constexpr int points8_25 = 11;
inline constexpr int points9 = 12;
inline constexpr int points10 = 13;
inline constexpr int points24 = 32;

// Arial, or the face of the same widths, at `pixels` high; the same pixels on every machine that has the
// face.
QFont arial(int pixels, bool bold = false);

// Where the machine has no such face, the program uses the font files (*.ttf) of this folder, if there is
// one.
void bringFace(const QString& folder);

// Has the system's list of faces read by another thread; whoever needs a text before waits for it. Destroying
// the result waits too. Before the application object is made, so that both take place at once.
std::future<void> readFacesAhead();

} // namespace orvinel
