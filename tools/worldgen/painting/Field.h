#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace worldgen {

// A grid of numbers over the picture, row by row.
class Field {
  public:
    Field() = default;
    Field(int width, int height, float value = 0)
        : width_(width), height_(height), values_(std::size_t(width) * std::size_t(height), value) {}

    int width() const { return width_; }
    int height() const { return height_; }
    int count() const { return width_ * height_; }

    float& at(int x, int y) { return values_[std::size_t(y) * std::size_t(width_) + std::size_t(x)]; }
    float at(int x, int y) const { return values_[std::size_t(y) * std::size_t(width_) + std::size_t(x)]; }
    float& operator[](int index) { return values_[std::size_t(index)]; }
    float operator[](int index) const { return values_[std::size_t(index)]; }

    // The nearest cell's value for a point outside.
    float clamped(int x, int y) const {
        return at(std::clamp(x, 0, width_ - 1), std::clamp(y, 0, height_ - 1));
    }
    // Between cells; the border's value outside.
    double sampled(double x, double y) const;

  private:
    int width_ = 0;
    int height_ = 0;
    std::vector<float> values_;
};

// Box blur; the border is continued outward.
Field blurred(const Field& source, int radius);

// For every cell the distance in cells to the nearest zero cell of `seeds` (any other value counts as far
// away).
Field distances(Field seeds);

// `value`(x, y) in picture pixels, computed at every `step`-th pixel only: for patterns far wider than
// that.
template <typename Function>
Field coarseLayer(int width, int height, int step, Function value) {
    Field layer((width + step - 1) / step + 1, (height + step - 1) / step + 1);
    for (int y = 0; y < layer.height(); ++y)
        for (int x = 0; x < layer.width(); ++x)
            layer.at(x, y) = float(value(double(x) * step, double(y) * step));
    return layer;
}

} // namespace worldgen
