#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>
#include <utility>

namespace worldgen {

// Random numbers of our own: the standard distributions differ between libraries.
class Rng {
  public:
    // Neighbouring seeds give unrelated numbers.
    explicit Rng(quint64 seed);

    quint32 next();
    // 0 <= result < 1.
    double unit() { return next() / 4294967296.0; }
    double range(double from, double to) { return from + (to - from) * unit(); }
    // Both ends included; `from` <= `to`.
    int whole(int from, int to) { return from + int((quint64(next()) * quint64(to - from + 1)) >> 32); }
    bool chance(double probability) { return unit() < probability; }

    template <typename List>
    void shuffle(List& list) {
        for (std::size_t k = list.size(); k > 1; --k)
            std::swap(list[k - 1], list[std::size_t(whole(0, int(k) - 1))]);
    }
    template <typename List>
    const auto& pick(const List& list) {
        return list[std::size_t(whole(0, int(list.size()) - 1))];
    }

  private:
    quint64 state_;
};

// Gradient noise on an integer lattice, period 256.
class Noise {
  public:
    explicit Noise(quint64 seed);

    // About -1..1, 0 on lattice points, features about one unit wide.
    double at(double x, double y) const;
    // Sum of `octaves`, each twice as fine and `gain` as strong; about -1..1.
    double fbm(double x, double y, int octaves, double gain = 0.5) const;
    // Sharp crests: 0..1.
    double ridged(double x, double y, int octaves) const;

  private:
    std::array<quint8, 514> lattice_;
};

} // namespace worldgen
