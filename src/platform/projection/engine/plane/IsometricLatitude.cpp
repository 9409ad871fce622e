#include "platform/projection/engine/plane/IsometricLatitude.h"

#include <algorithm>
#include <cmath>

double IsometricLatitude::ofLatitude(double phi, double e) {
    return std::asinh(std::tan(phi)) - e * std::atanh(e * std::sin(phi));
}

double IsometricLatitude::toLatitude(double psi, double e) {
    constexpr double farthest = 300; // the latitude has long been a right angle there, and no square overflows
    constexpr int mostSteps = 6;     // three do
    const double tangent = std::sinh(std::clamp(psi, -farthest, farthest)); // of the conformal latitude
    const double e2 = e * e;
    double tau = tangent / std::sqrt(1 - e2);
    for (int step = 0; step < mostSteps; ++step) {
        const double secant = std::hypot(1, tau);
        const double sigma = std::sinh(e * std::atanh(e * tau / secant));
        const double found = tau * std::hypot(1, sigma) - sigma * secant;
        const double change =
            (tangent - found) * (1 + (1 - e2) * tau * tau) / ((1 - e2) * secant * std::hypot(1, found));
        tau += change;
        if (!(std::abs(change) > 1e-16 * std::max(1.0, std::abs(tau))))
            break;
    }
    return std::atan(tau);
}
