#include "Motifs.h"

#include "PathText.h"

#include <QTransform>

#include <array>
#include <vector>

namespace worldgen {

namespace {

struct Motif {
    const char* kinds; ///< lower case, each between blanks
    double turn;       ///< degrees
    const char* shape;
};

constexpr std::array kMotifs{
    Motif{" sword attack ", 45,
          "M0 -27 L3.4 -21 L3.4 7 L11 7 L11 12 L3 12 L3 19 L5 23 L0 27 L-5 23 L-3 19 L-3 12 L-11 12 L-11 7 "
          "L-3.4 7 "
          "L-3.4 -21 Z"},
    Motif{" dagger attack ", 40,
          "M0 -25 C7 -14 6 -4 4 5 L11 4 L11 9 L4 10 L4 18 L0 23 L-4 18 L-4 10 L-11 9 L-11 4 L-4 5 C-6 -4 -7 "
          "-14 0 -25 Z"},
    Motif{" axe attack ", 25,
          "M-2.5 27 L-2.5 -25 L2.5 -25 L2.5 -21 C10 -27 19 -23 22 -14 C23 -8 21 -2 18 3 C14 -4 9 -7 2.5 -8 "
          "L2.5 27 Z U "
          "M-2.5 -20 C-9 -23 -14 -19 -15 -14 C-11 -10 -7 -9 -2.5 -8 Z"},
    Motif{" hammer ", -30,
          "M-3.5 -8 L-17 -8 L-20 -11 L-20 -22 L-17 -25 L17 -25 L20 -22 L20 -11 L17 -8 L3.5 -8 L3.5 27 L-3.5 "
          "27 Z"},
    Motif{" bow ", -35,
          "M-10 -26 C16 -20 18 16 -8 27 L-11 24 C10 12 9 -14 -12 -23 Z U M-20 -1 L14 -1 L14 -6 L26 1 L14 8 "
          "L14 3 L-20 3 "
          "L-24 8 L-27 8 L-23 1 L-27 -6 L-24 -6 Z"},
    Motif{" spear ", 42,
          "M0 -29 L7 -15 L2.4 -11 L2.4 28 L-2.4 28 L-2.4 -11 L-7 -15 Z U M-9 -7 L9 -7 L9 -3 L-9 -3 Z"},
    Motif{" beast ", 12,
          "M-18 -24 C-10 -10 -8 6 -14 24 C-22 8 -24 -10 -18 -24 Z U M-3 -26 C5 -10 6 8 0 26 C-8 8 -9 -10 -3 "
          "-26 Z U "
          "M13 -24 C21 -8 22 8 15 22 C7 8 6 -8 13 -24 Z"},
    Motif{" stance ", 0,
          "M0 -25 C8 -20 14 -19 21 -19 C22 2 15 19 0 27 C-15 19 -22 2 -21 -19 C-14 -19 -8 -20 0 -25 Z X "
          "M0 -9 L12 2 L12 10 L0 -1 L-12 10 L-12 2 Z"},
    Motif{" stance skill ", 0,
          "M-14 -16 C-14 -23 -6 -25 -5 -18 C-4 -26 5 -26 5 -18 C6 -25 14 -23 14 -16 C21 -12 21 0 17 6 L12 12 "
          "L12 26 "
          "L-12 26 L-12 12 L-17 6 C-19 0 -18 -10 -14 -16 Z X M-9.5 -9 L-7.5 -9 L-7.5 1 L-9.5 1 Z X "
          "M-1 -9 L1 -9 L1 1 L-1 1 Z X M7.5 -9 L9.5 -9 L9.5 1 L7.5 1 Z"},
    Motif{" hex ", 0,
          "M-26 0 C-14 -18 14 -18 26 0 C14 18 -14 18 -26 0 Z X E0 0 10.5 10.5 U E0 0 5 7 U M0 -27 L3.4 -15 "
          "L-3.4 -15 Z U "
          "M-18 -22 L-8 -14 L-14 -10 Z U M18 -22 L8 -14 L14 -10 Z U M0 27 L3.4 15 L-3.4 15 Z U M-18 22 L-8 "
          "14 L-14 10 Z "
          "U M18 22 L8 14 L14 10 Z"},
    Motif{
        " hex ", 0,
        "M0 -25 C17 -25 22 -13 20 -2 C19 5 13 7 12 11 L12 21 L6 19 L4 23 L0 20 L-4 23 L-6 19 L-12 21 L-12 11 "
        "C-13 7 -19 5 -20 -2 C-22 -13 -17 -25 0 -25 Z X E-8 -4 5 6 X E8 -4 5 6 X M0 3 L3 10 L-3 10 Z"},
    Motif{" hex ", 0,
          "M0 -27 L23 -13.5 L23 13.5 L0 27 L-23 13.5 L-23 -13.5 Z X M0 -20 L17 -10 L17 10 L0 20 L-17 10 L-17 "
          "-10 Z U "
          "M0 -15 C7 -5 7 5 0 15 C-7 5 -7 -5 0 -15 Z"},
    Motif{" hex ward ", 0, "M0 -26 C16 -22 17 -6 4 -1 C9 -10 7 -18 0 -26 Z R5"},
    Motif{" shout ", -8, "M-26 9 C-10 11 3 4 9 -14 L6 -20 L22 -26 L27 -5 L20 -4 C12 16 -6 22 -25 16 Z"},
    Motif{
        " shout anthem ", 0,
        "M-15 -27 L-11 -27 L-11 27 L-15 27 Z U M-11 -23 C0 -29 9 -17 22 -23 L15 -10 L22 3 C9 9 0 -3 -11 3 Z"},
    Motif{
        " chant anthem ", 0,
        "M-14 -25 C-25 -6 -17 8 -6 16 L-9 25 L9 25 L6 16 C17 8 25 -6 14 -25 L10 -22 C17 -6 12 4 4 11 L-4 11 "
        "C-12 4 -17 -6 -10 -22 Z U M-15 -14 L15 -14 L15 -10 L-15 -10 Z U M-7 -10 L-5 -10 L-3 12 L-5 12 Z U "
        "M-1 -10 L1 -10 L1 12 L-1 12 Z U M7 -10 L5 -10 L3 12 L5 12 Z"},
    Motif{" chant ", 0,
          "E-12 17 9 7 U E13 12 9 7 U M-7 17 L-7 -18 L22 -25 L22 12 L18.5 12 L18.5 -13 L-3.5 -8 L-3.5 17 Z"},
    Motif{" spirit ritual glamour ", 0,
          "M-20 -22 C-8 -27 8 -27 20 -22 C23 0 15 22 0 27 C-15 22 -23 0 -20 -22 Z X M-15 -6 C-10 -12 -6 -10 "
          "-3 -4 "
          "C-7 -1 -11 -1 -15 -6 Z X M15 -6 C10 -12 6 -10 3 -4 C7 -1 11 -1 15 -6 Z X M-9 9 C-3 13 3 13 9 9 C4 "
          "18 -4 18 -9 9 Z"},
    Motif{" spirit ritual ", 0,
          "M0 -27 C12 -20 17 -8 16 6 C16 14 22 18 24 26 C17 21 13 24 9 27 C6 22 3 22 0 26 C-3 22 -6 22 -9 27 "
          "C-13 24 -17 21 -24 26 C-22 18 -16 14 -16 6 C-17 -8 -12 -20 0 -27 Z X E-6 -6 3.4 5 X E6 -6 3.4 5 X "
          "E0 6 3 4"},
    Motif{" vessel ", 0,
          "M-9 -25 L9 -25 L7 -18 C20 -10 19 8 7 20 L10 26 L-10 26 L-7 20 C-19 8 -20 -10 -7 -18 Z X M-14 -5 "
          "L14 -5 L14 -2 "
          "L-14 -2 Z X M-13 4 L13 4 L12 7 L-12 7 Z"},
    Motif{" elixir ", 0,
          "M-6 -27 L6 -27 L6 -22 L4.5 -22 L4.5 -10 L19 15 C21 22 18 26 13 26 L-13 26 C-18 26 -21 22 -19 15 "
          "L-4.5 -10 "
          "L-4.5 -22 L-6 -22 Z X E-5 14 3.4 3.4 X E5 7 2.4 2.4 X E7 18 2.2 2.2"},
    Motif{" oil ", 0,
          "M0 -27 C6 -12 18 -2 18 9 C18 20 9 26 0 26 C-9 26 -18 20 -18 9 C-18 -2 -6 -12 0 -27 Z X "
          "M-11 7 C-11 15 -6 20 1 21 C-5 17 -7 13 -7 7 Z"},
    Motif{" trap ", 0,
          "M-25 3 C-22 -21 22 -21 25 3 L20 3 L16 -4 L12 5 L8 -6 L4 4 L0 -7 L-4 4 L-8 -6 L-12 5 L-16 -4 L-20 "
          "3 Z U "
          "M-25 7 L-20 7 L-16 14 L-12 6 L-8 17 L-4 8 L0 18 L4 8 L8 17 L12 6 L16 14 L20 7 L25 7 C22 30 -22 30 "
          "-25 7 Z"},
    Motif{" signet ", 0,
          "E0 8 18 18 X E0 8 12 12 U M-11 -11 L-7 -25 L7 -25 L11 -11 L0 -3 Z X M-5 -13 L-3 -21 L3 -21 L5 -13 "
          "L0 -9 Z"},
    Motif{" ward ", 0,
          "E0 0 26 26 X E0 0 22 22 U M0 -20 L17.3 10 L-17.3 10 Z X M0 -12 L10.4 6 L-10.4 6 Z U E0 0 4.5 4.5"},
    Motif{" ward ", 0,
          "M-14 26 L-11 -9 L-17 -9 L-17 -25 L-9.5 -25 L-9.5 -19 L-3.7 -19 L-3.7 -25 L3.7 -25 L3.7 -19 L9.5 "
          "-19 L9.5 -25 "
          "L17 -25 L17 -9 L11 -9 L14 26 Z X M-4 26 L-4 13 C-4 6 4 6 4 13 L4 26 Z"},
    Motif{" vow ", 0,
          "M-16 -25 L19 -25 C13 -21 15 -16 15 -12 L15 18 C15 24 11 27 6 27 L-21 27 C-15 24 -15 20 -15 16 "
          "L-15 -14 "
          "C-15 -20 -12 -22 -16 -25 Z X M-8 -14 L8 -14 L8 -10.5 L-8 -10.5 Z X M-8 -6 L8 -6 L8 -2.5 L-8 -2.5 "
          "Z X "
          "M-8 2 L8 2 L8 5.5 L-8 5.5 Z X E3 16 4.4 4.4"},
    Motif{" grenado ", 0,
          "E-4 6 19 19 U M5 -16 L14 -8 L8 -1 L-1 -9 Z U M9 -13 C14 -23 22 -18 23 -26 L27 -23 C25 -13 17 -17 "
          "13 -9 Z X "
          "M-17 4 C-16 -3 -11 -7 -6 -8 C-10 -4 -13 -1 -13 5 Z"},
    Motif{" preparation ", 0,
          "M25 -25 L21 -4 L15 -10 L-9 14 L-9 22 L-16 27 L-17 17 L-27 16 L-22 9 L-14 9 L10 -15 L4 -21 Z"},
    Motif{" spell ", 0,
          "M2 -28 C6 -14 20 -8 19 8 C18 20 8 27 0 27 C-10 27 -19 19 -19 8 C-19 0 -13 -5 -12 -13 C-8 -10 -6 "
          "-6 -6 -2 "
          "C0 -8 4 -17 2 -28 Z X M1 3 C4 9 8 10 8 16 C8 21 4 23 0 23 C-5 23 -8 20 -8 15 C-8 11 -5 9 -4 6 C-1 "
          "8 1 7 1 3 Z"},
    Motif{" spell ", 0, "M8 -28 L-16 4 L-4 4 L-10 28 L16 -7 L4 -7 L14 -28 Z"},
    Motif{" spell ", 0,
          "M0 -28 L4 -10 L14 -15 L10 -4 L28 0 L10 4 L14 15 L4 10 L0 28 L-4 10 L-14 15 L-10 4 L-28 0 L-10 -4 "
          "L-14 -15 "
          "L-4 -10 Z"},
    Motif{" spell ", 0,
          "M-2 0 L-2 -11 L-9 -17 L-6 -20 L-2 -16 L-2 -27 L2 -27 L2 -16 L6 -20 L9 -17 L2 -11 L2 0 Z R6"},
    Motif{" spell ", 0,
          "M6 -26 C-14 -25 -25 -8 -23 4 C-21 19 -6 28 11 24 C-4 19 -11 9 -10 -2 C-9 -12 -4 -21 6 -26 Z U "
          "M13 -13 L15.5 -5.5 L23 -3 L15.5 -0.5 L13 7 L10.5 -0.5 L3 -3 L10.5 -5.5 Z"},
    Motif{" spell ", 0,
          "M-10 27 L-12 8 L-23 -4 C-25 -9 -19 -11 -16 -7 L-10 -1 L-13 -18 C-13 -23 -7 -23 -6 -18 L-4 -4 "
          "L-3.5 -22 "
          "C-3 -27 3 -27 3.5 -22 L4 -4 L8 -19 C9 -24 15 -22 14 -18 L11 -1 L16 -10 C19 -14 24 -11 21 -6 L12 "
          "12 L10 27 Z"},
    Motif{" spell ", 0, "E0 0 13 13 X E-4 -4 4 3.4 U M0 -27 L4 -16 L-4 -16 Z R7"},
    Motif{" enchantment ", 0,
          "M0 17 C-6 6 -8 -6 -5 -15 C-14 -19 -24 -18 -28 -25 C-29 -6 -20 11 0 19 Z U M0 17 C6 6 8 -6 5 -15 "
          "C14 -19 24 -18 28 -25 C29 -6 20 11 0 19 Z U M0 -17 L4.5 -7 L2.4 22 L0 27 L-2.4 22 L-4.5 -7 Z"},
    Motif{" enchantment ", 0, "M0 -28 L4.4 -16 L-4.4 -16 Z R8 U E0 0 15 15 X E0 0 10 10 U E0 0 6 6"},
    Motif{" enchantment ", 0, "M0 -27 C9 -18 9 -8 0 0 C-9 -8 -9 -18 0 -27 Z R6 X E0 0 5 5 U E0 0 3 3"},
    Motif{" enchantment ", 0,
          "M-21 25 C-24 -4 -5 -23 25 -25 C23 5 6 21 -14 18 L-19 27 Z X M-14 13 L14 -15 L16 -13 L-12 15 Z"},
    Motif{" enchantment ", 0,
          "M-19 -22 L19 -22 C19 -4 11 4 3 6 L3 19 L12 23 L12 26 L-12 26 L-12 23 L-3 19 L-3 6 C-11 4 -19 -4 "
          "-19 -22 Z X "
          "M-13 -17 L-8 -17 C-8 -9 -6 -4 -3 0 C-9 -3 -12 -9 -13 -17 Z"},
    Motif{
        " skill ", 0,
        "M-13 -21 L13 -21 L25 -6 L0 27 L-25 -6 Z X M-18 -6.5 L-9 -6.5 L-2 18 Z X M18 -6.5 L9 -6.5 L2 18 Z X "
        "M-4.6 -6.5 L4.6 -6.5 L0 14 Z"},
    Motif{
        " skill ", 0,
        "M-17 -27 L17 -27 L17 -22 L13 -22 C13 -8 4 -4 3.4 0 C4 4 13 8 13 22 L17 22 L17 27 L-17 27 L-17 22 "
        "L-13 22 "
        "C-13 8 -4 4 -3.4 0 C-4 -4 -13 -8 -13 -22 L-17 -22 Z X M-8 -15 L8 -15 L0 -4 Z X M0 8 L9 21 L-9 21 Z"},
};

std::vector<const Motif*> motifsOf(const QString& word) {
    std::vector<const Motif*> found;
    for (const Motif& motif : kMotifs)
        if (QLatin1String(motif.kinds).contains(QString(QLatin1Char(' ') + word + QLatin1Char(' '))))
            found.push_back(&motif);
    return found;
}

} // namespace

QPainterPath motifFor(const QString& kind, Rng& rng) {
    std::vector<const Motif*> choice;
    for (const QString& word : kind.toLower().split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        choice = motifsOf(word);
        if (!choice.empty())
            break;
    }
    if (choice.empty())
        choice = {&kMotifs[std::size_t(rng.whole(0, int(kMotifs.size()) - 1))]};
    const Motif& motif = *rng.pick(choice);
    const QPainterPath shape = QTransform().rotate(motif.turn).map(pathFromText(QLatin1String(motif.shape)));
    const QRectF bounds = shape.boundingRect();
    const double fit = 2 * kMotifReach / std::max(bounds.width(), bounds.height());
    return QTransform().scale(fit, fit).map(shape.translated(-bounds.center()));
}

} // namespace worldgen
