#include "Maths.h"

namespace worldgen {

namespace {

double exp2Of(double x) {
    if (x < -1000)
        return 0;
    const double whole = std::floor(x + 0.5);
    const double t = (x - whole) * 0.69314718055994530942;
    double sum = 1;
    for (int k = 12; k >= 1; --k)
        sum = 1 + sum * t / k;
    return std::ldexp(sum, int(whole));
}

} // namespace

double expOf(double x) {
    return exp2Of(x * 1.44269504088896340736);
}

double log2Of(double x) {
    int exponent = 0;
    double m = std::frexp(x, &exponent);
    if (m < 0.70710678118654752440) {
        m *= 2;
        --exponent;
    }
    const double s = (m - 1) / (m + 1);
    const double s2 = s * s;
    double sum = 0;
    for (int k = 21; k >= 1; k -= 2)
        sum = sum * s2 + 1.0 / k;
    return exponent + 2 * s * sum * 1.44269504088896340736;
}

double powOf(double base, double exponent) {
    return base <= 0 ? 0 : exp2Of(exponent * log2Of(base));
}

double sineOf(double angle) {
    const double turns = std::floor(angle / (2 * pi) + 0.5);
    double x = angle - turns * 2 * pi;
    if (x > pi / 2)
        x = pi - x;
    else if (x < -pi / 2)
        x = -pi - x;
    const double x2 = x * x;
    double sum = 1;
    for (int k = 17; k >= 3; k -= 2)
        sum = 1 - sum * x2 / (k * (k - 1));
    return x * sum;
}

double cosineOf(double angle) {
    return sineOf(angle + pi / 2);
}

} // namespace worldgen
