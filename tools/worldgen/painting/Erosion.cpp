#include "Landscape.h"
#include "Maths.h"

namespace worldgen {

namespace {

constexpr double inertia = 0.06;
constexpr double loadCapacity = 3.2;
constexpr double exchangeRate = 0.3;
constexpr int lifetime = 42;
constexpr double dropsPerCell = 0.19; // more melts the peaks

// One drop of rain on its way down: it takes ground along where it runs fast and leaves it where it slows.
class Drop {
  public:
    Drop(Field& height, double x, double y) : height_(height), x_(x), y_(y) {}

    // False when the drop has come to rest, to the border or to the sea.
    bool advance();

  private:
    void lay(double amount);
    void dig(double amount);

    Field& height_;
    double x_, y_;
    double dirX_ = 0, dirY_ = 0;
    double speed_ = 1, water_ = 1, load_ = 0;
    int column_ = 0, row_ = 0;
    double a_ = 0, b_ = 0;
};

bool Drop::advance() {
    column_ = int(x_);
    row_ = int(y_);
    if (column_ < 1 || row_ < 1 || column_ >= height_.width() - 2 || row_ >= height_.height() - 2)
        return false;
    a_ = x_ - column_;
    b_ = y_ - row_;
    const double nw = height_.at(column_, row_), ne = height_.at(column_ + 1, row_);
    const double sw = height_.at(column_, row_ + 1), se = height_.at(column_ + 1, row_ + 1);
    const double here = lerp(lerp(nw, ne, a_), lerp(sw, se, a_), b_);
    if (here < -0.02)
        return false;
    dirX_ = dirX_ * inertia - lerp(ne - nw, se - sw, b_) * (1 - inertia);
    dirY_ = dirY_ * inertia - lerp(sw - nw, se - ne, a_) * (1 - inertia);
    const double length = lengthOf(dirX_, dirY_);
    if (length < 1e-9)
        return false;
    dirX_ /= length;
    dirY_ /= length;
    const double rise = height_.sampled(x_ + dirX_, y_ + dirY_) - here;
    const double capacity = std::max(-rise, 0.0008) * speed_ * water_ * loadCapacity;
    if (load_ > capacity || rise > 0)
        lay(rise > 0 ? std::min(rise, load_) : (load_ - capacity) * exchangeRate);
    else
        dig(std::min((capacity - load_) * exchangeRate, -rise));
    speed_ = std::sqrt(std::max(0.0, speed_ * speed_ - rise * 4));
    water_ *= 0.985;
    x_ += dirX_;
    y_ += dirY_;
    return true;
}

void Drop::lay(double amount) {
    load_ -= amount;
    height_.at(column_, row_) += float(amount * (1 - a_) * (1 - b_));
    height_.at(column_ + 1, row_) += float(amount * a_ * (1 - b_));
    height_.at(column_, row_ + 1) += float(amount * (1 - a_) * b_);
    height_.at(column_ + 1, row_ + 1) += float(amount * a_ * b_);
}

void Drop::dig(double amount) {
    load_ += amount;
    for (int j = -1; j <= 2; ++j)
        for (int i = -1; i <= 2; ++i) {
            const double share = std::max(0.0, 1.6 - lengthOf(i - a_, j - b_)) / 6.2;
            height_.at(column_ + i, row_ + j) -= float(amount * share);
        }
}

} // namespace

void erode(Field& height, quint32 seed) {
    Rng rng(seed * 5ULL + 4);
    const int drops = int(height.count() * dropsPerCell);
    for (int k = 0; k < drops; ++k) {
        const double x = rng.range(1, height.width() - 2);
        const double y = rng.range(1, height.height() - 2);
        Drop drop(height, x, y);
        for (int step = 0; step < lifetime && drop.advance(); ++step) {
        }
    }
}

} // namespace worldgen
