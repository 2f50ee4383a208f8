#pragma once

#include <algorithm>
#include <cmath>

// Elementary functions whose last bit does not depend on the machine's maths library: pictures must come out
// the same everywhere, and only + - * / and sqrt are the same everywhere.
namespace worldgen {

constexpr double pi = 3.14159265358979323846;

inline double clamp01(double x) {
    return std::clamp(x, 0.0, 1.0);
}

inline double lerp(double a, double b, double t) {
    return a + (b - a) * t;
}

// 0 below `from`, 1 above `to`, smooth between. `from` may be the larger one: the step then falls.
inline double smoothStep(double from, double to, double x) {
    const double t = clamp01((x - from) / (to - from));
    return t * t * (3 - 2 * t);
}

inline double lengthOf(double x, double y) {
    return std::sqrt(x * x + y * y);
}

double expOf(double x);
// `x` > 0.
double log2Of(double x);
// `base` >= 0.
double powOf(double base, double exponent);
// Radians, |angle| below 1e6.
double sineOf(double angle);
double cosineOf(double angle);

} // namespace worldgen
