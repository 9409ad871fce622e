#pragma once

/// Degrees and radians.
namespace Angle {

constexpr double pi = 3.141592653589793;

constexpr double toRadians(double degrees) {
    return degrees * pi / 180;
}

constexpr double toDegrees(double radians) {
    return radians * 180 / pi;
}

} // namespace Angle
