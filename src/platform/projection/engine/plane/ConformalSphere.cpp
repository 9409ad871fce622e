#include "platform/projection/engine/plane/ConformalSphere.h"

#include "catalogue/Angle.h"
#include "platform/projection/engine/plane/IsometricLatitude.h"

#include <cmath>

namespace {

double squareOfW(double e2, double phi) {
    return 1 - e2 * std::pow(std::sin(phi), 2);
}

} // namespace

ConformalSphere::ConformalSphere(double a, double e2, double latitude, double constant, double tangentOfCentre,
                                 double radius)
    : a(a)
    , e2(e2)
    , e(std::sqrt(e2))
    , constant(constant)
    , tangentOfCentre(tangentOfCentre)
    , sphereRadius(radius)
    , isometricCentre(IsometricLatitude::ofLatitude(Angle::toRadians(latitude), e))
    , isometricOnSphere(std::asinh(tangentOfCentre)) {
}

ConformalSphere ConformalSphere::fitting(double a, double e2, double latitude) {
    const double phi = Angle::toRadians(latitude);
    const double w2 = squareOfW(e2, phi);
    const double constant = std::sqrt(1 + e2 / (1 - e2) * std::pow(std::cos(phi), 4));
    // That of the angle whose sine is sin(phi) / constant.
    const double tangent = std::tan(phi) * std::sqrt((1 - e2) / w2);
    return {a, e2, latitude, constant, tangent, a * std::sqrt(1 - e2) / w2};
}

ConformalSphere ConformalSphere::ofConformalLatitudes(double a, double e2, double latitude) {
    const double phi = Angle::toRadians(latitude);
    const double isometric = IsometricLatitude::ofLatitude(phi, std::sqrt(e2));
    return {a,
            e2,
            latitude,
            1,
            std::sinh(isometric),
            a * std::cos(phi) / std::sqrt(squareOfW(e2, phi)) * std::cosh(isometric)};
}

double ConformalSphere::sine() const {
    return tangentOfCentre / std::hypot(1, tangentOfCentre);
}

double ConformalSphere::cosine() const {
    return 1 / std::hypot(1, tangentOfCentre);
}

ConformalSphere::Vector ConformalSphere::vector(double phi, double lambda) const {
    const double psi = isometricOnSphere + constant * (IsometricLatitude::ofLatitude(phi, e) - isometricCentre);
    const double cosine = 1 / std::cosh(psi);
    return {cosine * std::cos(constant * lambda), cosine * std::sin(constant * lambda), std::tanh(psi)};
}

ConformalSphere::Place ConformalSphere::place(const Vector& vector) const {
    const double psi = std::asinh(vector[2] / std::hypot(vector[0], vector[1]));
    const double phi = IsometricLatitude::toLatitude(isometricCentre + (psi - isometricOnSphere) / constant, e);
    return {Angle::toDegrees(phi), Angle::toDegrees(std::atan2(vector[1], vector[0]) / constant)};
}

/// The parallel's radius on the sphere and on the ellipsoid.
double ConformalSphere::scale(double phi, const Vector& vector) const {
    return sphereRadius * constant * std::hypot(vector[0], vector[1]) /
           (a * std::cos(phi) / std::sqrt(squareOfW(e2, phi)));
}
