#pragma once

#include <array>

/// Vectors in space.
namespace Vectors {

using Vector = std::array<double, 3>;

inline double product(const Vector& left, const Vector& right) {
    return left[0] * right[0] + left[1] * right[1] + left[2] * right[2];
}

inline Vector cross(const Vector& left, const Vector& right) {
    return {left[1] * right[2] - left[2] * right[1], left[2] * right[0] - left[0] * right[2],
            left[0] * right[1] - left[1] * right[0]};
}

/// a x + b y
inline Vector sum(double a, const Vector& x, double b, const Vector& y) {
    return {a * x[0] + b * y[0], a * x[1] + b * y[1], a * x[2] + b * y[2]};
}

} // namespace Vectors
