#include "Field.h"

namespace worldgen {

double Field::sampled(double x, double y) const {
    x = std::clamp(x, 0.0, width_ - 1.001);
    y = std::clamp(y, 0.0, height_ - 1.001);
    const int column = int(x);
    const int row = int(y);
    const double a = x - column;
    const double b = y - row;
    const double top = at(column, row) + a * (at(column + 1, row) - at(column, row));
    const double bottom = at(column, row + 1) + a * (at(column + 1, row + 1) - at(column, row + 1));
    return top + b * (bottom - top);
}

Field blurred(const Field& source, int radius) {
    const double span = 2 * radius + 1;
    Field rows(source.width(), source.height());
    for (int y = 0; y < source.height(); ++y) {
        double sum = 0;
        for (int x = -radius; x <= radius; ++x)
            sum += source.clamped(x, y);
        for (int x = 0; x < source.width(); ++x) {
            rows.at(x, y) = float(sum / span);
            sum += source.clamped(x + radius + 1, y) - source.clamped(x - radius, y);
        }
    }
    Field result(source.width(), source.height());
    for (int x = 0; x < source.width(); ++x) {
        double sum = 0;
        for (int y = -radius; y <= radius; ++y)
            sum += rows.clamped(x, y);
        for (int y = 0; y < source.height(); ++y) {
            result.at(x, y) = float(sum / span);
            sum += rows.clamped(x, y + radius + 1) - rows.clamped(x, y - radius);
        }
    }
    return result;
}

namespace {

constexpr float diagonal = 1.41421356F;

void relaxForward(Field& d, int x, int y) {
    float& here = d.at(x, y);
    if (x > 0)
        here = std::min(here, d.at(x - 1, y) + 1);
    if (y == 0)
        return;
    here = std::min(here, d.at(x, y - 1) + 1);
    if (x > 0)
        here = std::min(here, d.at(x - 1, y - 1) + diagonal);
    if (x + 1 < d.width())
        here = std::min(here, d.at(x + 1, y - 1) + diagonal);
}

void relaxBackward(Field& d, int x, int y) {
    float& here = d.at(x, y);
    if (x + 1 < d.width())
        here = std::min(here, d.at(x + 1, y) + 1);
    if (y + 1 == d.height())
        return;
    here = std::min(here, d.at(x, y + 1) + 1);
    if (x + 1 < d.width())
        here = std::min(here, d.at(x + 1, y + 1) + diagonal);
    if (x > 0)
        here = std::min(here, d.at(x - 1, y + 1) + diagonal);
}

} // namespace

Field distances(Field seeds) {
    for (int k = 0; k < seeds.count(); ++k)
        if (seeds[k] != 0)
            seeds[k] = 1e6F;
    for (int y = 0; y < seeds.height(); ++y)
        for (int x = 0; x < seeds.width(); ++x)
            relaxForward(seeds, x, y);
    for (int y = seeds.height() - 1; y >= 0; --y)
        for (int x = seeds.width() - 1; x >= 0; --x)
            relaxBackward(seeds, x, y);
    return seeds;
}

} // namespace worldgen
