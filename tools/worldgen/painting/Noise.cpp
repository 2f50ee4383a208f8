#include "Noise.h"

#include "Maths.h"

namespace worldgen {

namespace {

quint64 scrambled(quint64 z) {
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

} // namespace

Rng::Rng(quint64 seed) : state_(scrambled(seed + 0x632BE59BD9B4E019ULL)) {
}

quint32 Rng::next() {
    state_ += 0x9E3779B97F4A7C15ULL;
    return quint32(scrambled(state_) >> 32);
}

Noise::Noise(quint64 seed) {
    std::array<quint8, 256> order;
    for (std::size_t k = 0; k < order.size(); ++k)
        order[k] = quint8(k);
    Rng(seed).shuffle(order);
    for (std::size_t k = 0; k < lattice_.size(); ++k)
        lattice_[k] = order[k & 255];
}

namespace {

double slopeAt(int hash, double x, double y) {
    constexpr double d = 0.70710678118654752440;
    constexpr double directions[8][2] = {{1, 0}, {-1, 0}, {0, 1},  {0, -1},
                                         {d, d}, {-d, d}, {d, -d}, {-d, -d}};
    const double* direction = directions[hash & 7];
    return direction[0] * x + direction[1] * y;
}

double fade(double t) {
    return t * t * t * (t * (t * 6 - 15) + 10);
}

} // namespace

double Noise::at(double x, double y) const {
    const double wholeX = std::floor(x);
    const double wholeY = std::floor(y);
    const std::size_t column = std::size_t(int(wholeX) & 255);
    const std::size_t row = std::size_t(int(wholeY) & 255);
    x -= wholeX;
    y -= wholeY;
    const std::size_t left = lattice_[column] + row;
    const std::size_t right = lattice_[column + 1] + row;
    const double a = fade(x);
    const double top = lerp(slopeAt(lattice_[left], x, y), slopeAt(lattice_[right], x - 1, y), a);
    const double bottom =
        lerp(slopeAt(lattice_[left + 1], x, y - 1), slopeAt(lattice_[right + 1], x - 1, y - 1), a);
    return 1.5 * lerp(top, bottom, fade(y));
}

double Noise::fbm(double x, double y, int octaves, double gain) const {
    double sum = 0;
    double strength = 1;
    double total = 0;
    for (int k = 0; k < octaves; ++k) {
        sum += strength * at(x, y);
        total += strength;
        strength *= gain;
        x = x * 2.03 + 17.1;
        y = y * 2.03 - 9.7;
    }
    return sum / total;
}

double Noise::ridged(double x, double y, int octaves) const {
    double sum = 0;
    double strength = 1;
    double total = 0;
    double weight = 1;
    for (int k = 0; k < octaves; ++k) {
        double crest = 1 - std::fabs(at(x, y));
        crest *= crest * weight;
        weight = clamp01(crest * 1.6);
        sum += strength * crest;
        total += strength;
        strength *= 0.5;
        x = x * 2.07 + 3.3;
        y = y * 2.07 + 7.7;
    }
    return sum / total;
}

} // namespace worldgen
