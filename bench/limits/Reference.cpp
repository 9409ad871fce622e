#include "Reference.h"

#include <GeographicLib/Ellipsoid.hpp>
#include <GeographicLib/TransverseMercatorExact.hpp>

#include <cmath>

__extension__ typedef __float128 Quad; // NOLINT(modernize-use-using): the extension goes with a typedef only

// Of GCC's libquadmath, whose header other compilers' tools don't find.
extern "C" {
Quad acosq(Quad);
Quad asinq(Quad);
Quad atan2q(Quad, Quad);
Quad atanhq(Quad);
Quad atanq(Quad);
Quad copysignq(Quad, Quad);
Quad cosq(Quad);
Quad fabsq(Quad);
Quad logq(Quad);
Quad powq(Quad, Quad);
Quad remainderq(Quad, Quad);
Quad sinq(Quad);
Quad sqrtq(Quad);
Quad tanq(Quad);
}

namespace {

const Quad pi = acosq(-1);

Quad radians(double degrees) {
    return Quad(degrees) * pi / 180;
}

Quad square(Quad x) {
    return x * x;
}

struct Easting {
    Quad east, north;
};

/// One place's longitude from the origin's, and the ellipsoid.
class Formulas {
public:
    explicit Formulas(const Parameters& parameters) : p(parameters), a(p.a) {
        const Quad f = p.inverseFlattening == 0 ? Quad(0) : 1 / Quad(p.inverseFlattening);
        e2 = f * (2 - f);
        e = sqrtq(e2);
    }

    Easting mercator(Quad phi, Quad lambda) const {
        const Quad scale = p.method == ProjectionMethod::Mercator ? Quad(p.scale) : m(radians(p.parallel1));
        return {a * scale * lambda, -a * scale * logq(t(phi))};
    }

    Easting lambert(Quad phi, Quad lambda) const {
        const Quad phi1 = radians(p.parallel1);
        const Quad phi2 = p.method == ProjectionMethod::LambertTwoParallels ? radians(p.parallel2) : phi1;
        const Quad n = phi1 == phi2 ? sinq(phi1) : (logq(m(phi1)) - logq(m(phi2))) / (logq(t(phi1)) - logq(t(phi2)));
        const Quad F = m(phi1) / (n * powq(t(phi1), n));
        const Quad r = a * F * powq(t(phi), n) * p.scale;
        const Quad rF = a * F * powq(t(radians(p.latitude)), n) * p.scale;
        return {r * sinq(n * lambda), rF - r * cosq(n * lambda)};
    }

    Easting polarStereographic(Quad phi, Quad lambda) const {
        const Quad side = p.latitude > 0 ? 1 : -1;
        Quad factor = 2 * Quad(p.scale) / sqrtq(powq(1 + e, 1 + e) * powq(1 - e, 1 - e));
        if (std::abs(p.parallel1) != 90)
            factor = m(radians(std::abs(p.parallel1))) / t(radians(std::abs(p.parallel1)));
        const Quad rho = a * factor * t(side * phi);
        return {rho * sinq(lambda), -side * rho * cosq(lambda)};
    }

    Easting obliqueStereographic(Quad phi, Quad lambda) const {
        const Quad phi1 = radians(p.latitude);
        const Quad chi1 = conformal(phi1), chi = conformal(phi);
        const Quad A = 2 * a * p.scale * m(phi1) /
                       (cosq(chi1) * (1 + sinq(chi1) * sinq(chi) + cosq(chi1) * cosq(chi) * cosq(lambda)));
        return {A * cosq(chi) * sinq(lambda), A * (cosq(chi1) * sinq(chi) - sinq(chi1) * cosq(chi) * cosq(lambda))};
    }

    Easting doubleStereographic(Quad phi, Quad lambda) const {
        const Quad phi0 = radians(p.latitude);
        const Quad n = aposphere(phi0);
        const auto w = [&](Quad latitude) {
            const Quad sine = sinq(latitude);
            return powq((1 + sine) / (1 - sine) * powq((1 - e * sine) / (1 + e * sine), e), n);
        };
        const Quad first = (w(phi0) - 1) / (w(phi0) + 1);
        const Quad c = (n + sinq(phi0)) * (1 - first) / ((n - sinq(phi0)) * (1 + first));
        const auto chiOf = [&](Quad latitude) { return asinq((c * w(latitude) - 1) / (c * w(latitude) + 1)); };
        const Quad chi0 = chiOf(phi0), chi = chiOf(phi), turn = n * lambda;
        const Quad R = a * sqrtq(1 - e2) / (1 - e2 * square(sinq(phi0)));
        const Quad B = 1 + sinq(chi) * sinq(chi0) + cosq(chi) * cosq(chi0) * cosq(turn);
        return {2 * R * p.scale * cosq(chi) * sinq(turn) / B,
                2 * R * p.scale * (sinq(chi) * cosq(chi0) - cosq(chi) * sinq(chi0) * cosq(turn)) / B};
    }

    Easting cassini(Quad phi, Quad lambda) const {
        if (e2 == 0) // Snyder 1987, equations 13-1 and 13-2, of which the note's are a series
            return {a * asinq(cosq(phi) * sinq(lambda)), a * (atan2q(tanq(phi), cosq(lambda)) - radians(p.latitude))};
        const Quad A = lambda * cosq(phi), T = square(tanq(phi)), C = e2 * square(cosq(phi)) / (1 - e2);
        const Quad nu = a / sqrtq(1 - e2 * square(sinq(phi)));
        const Quad north = A * A / 2 + (5 - T + 6 * C) * powq(A, 4) / 24;
        return {nu * (A - T * powq(A, 3) / 6 - (8 - T + 8 * C) * T * powq(A, 5) / 120),
                meridian(phi) - meridian(radians(p.latitude)) + nu * tanq(phi) * north};
    }

    /// Takes longitudes from Greenwich.
    Easting obliqueMercator(Quad phi, double longitude) const {
        const bool byAzimuth = p.method == ProjectionMethod::ObliqueMercatorAzimuth;
        const Quad phiC = radians(p.latitude);
        const Quad B = aposphere(phiC);
        const Quad A = a * B * p.scale * sqrtq(1 - e2) / (1 - e2 * square(sinq(phiC)));
        const Quad D = B * sqrtq(1 - e2) / (cosq(phiC) * sqrtq(1 - e2 * square(sinq(phiC))));
        const Quad root = D * D <= 1 ? Quad(0) : sqrtq(D * D - 1);
        const Quad side = phiC < 0 ? -1 : 1;
        const Quad F = D + root * side;
        const Quad H = F * powq(t(phiC), B);
        Quad gamma0, alpha, lambda0, origin; // lambda0 is counted from the longitude `origin` in degrees
        if (byAzimuth) {
            alpha = radians(p.azimuth);
            const Quad sine = sinq(alpha) / D;
            gamma0 = asinq(fabsq(sine) > 1 ? copysignq(1, sine) : sine); // 1 and a rounding on the equator
            // At 90 degrees the guidance note's arc sine is that of 1.
            const bool isSquare = std::abs(std::remainder(p.azimuth, 180)) == 90;
            const Quad turn = (F - 1 / F) / 2 * tanq(gamma0);
            lambda0 = phiC == 0 ? Quad(0) : -(isSquare ? copysignq(pi / 2, turn) : asinq(turn)) / B;
            origin = p.longitude;
        } else {
            const Quad h = powq(t(radians(p.lat1)), B), l = powq(t(radians(p.lat2)), B);
            const Quad f = H / h;
            const Quad J = (H * H - l * h) / (H * H + l * h);
            const Quad lambda2 = Quad(std::remainder(p.lon2 - p.lon1, 360)) * pi / 180;
            lambda0 = lambda2 / 2 - atanq(J * tanq(B * -lambda2 / 2) / ((l - h) / (l + h))) / B;
            gamma0 = atanq(2 * sinq(-B * lambda0) / (f - 1 / f));
            alpha = asinq(D * sinq(gamma0));
            origin = p.lon1;
        }
        const Quad uc = fabsq(A / B * atanq(root / cosq(alpha))) * side;
        const Quad lambda = remainderq(Quad(longitude) - origin, 360) * pi / 180 - lambda0;
        const Quad Q = H / powq(t(phi), B);
        const Quad S = (Q - 1 / Q) / 2, T = (Q + 1 / Q) / 2, V = sinq(B * lambda);
        const Quad U = (-V * cosq(gamma0) + S * sinq(gamma0)) / T;
        const Quad v = A * logq((1 - U) / (1 + U)) / (2 * B);
        const Quad u = A / B * atan2q(S * cosq(gamma0) + V * sinq(gamma0), cosq(B * lambda)) - uc;
        return {v * cosq(alpha) + u * sinq(alpha), u * cosq(alpha) - v * sinq(alpha)};
    }

    Easting transverseMercator(double latitude, double longitude) const {
        const double lambda = std::remainder(longitude - p.longitude, 360);
        if (e2 == 0) {
            const Quad phi = radians(latitude), turn = radians(lambda);
            const Quad B = cosq(phi) * sinq(turn);
            return {a * p.scale * atanhq(B), a * p.scale * (atan2q(tanq(phi), cosq(turn)) - radians(p.latitude))};
        }
        const GeographicLib::TransverseMercatorExact exact(p.a, 1 / p.inverseFlattening, p.scale);
        double x = 0, y = 0, x0 = 0, y0 = 0;
        exact.Forward(0, latitude, lambda, x, y);
        exact.Forward(0, p.latitude, 0, x0, y0);
        return {Quad(x), Quad(y) - y0};
    }

private:
    Quad m(Quad phi) const { return cosq(phi) / sqrtq(1 - e2 * square(sinq(phi))); }
    Quad t(Quad phi) const { return tanq(pi / 4 - phi / 2) / powq((1 - e * sinq(phi)) / (1 + e * sinq(phi)), e / 2); }
    Quad conformal(Quad phi) const { return pi / 2 - 2 * atanq(t(phi)); }
    Quad aposphere(Quad phi) const { return sqrtq(1 + e2 * square(square(cosq(phi))) / (1 - e2)); }
    Quad meridian(Quad phi) const {
        const double f = p.inverseFlattening == 0 ? 0 : 1 / p.inverseFlattening;
        return Quad(GeographicLib::Ellipsoid(p.a, f).MeridianDistance(double(phi * 180 / pi)));
    }

    const Parameters& p;
    Quad a, e2, e;
};

} // namespace

GridPoint reference(const Parameters& parameters, double latitude, double longitude) {
    const Formulas formulas(parameters);
    const Quad phi = radians(latitude);
    const Quad lambda = radians(std::remainder(longitude - parameters.longitude, 360));
    Easting place{};
    switch (parameters.method) {
    case ProjectionMethod::TransverseMercator:
    case ProjectionMethod::TransverseMercatorScaled:
        place = formulas.transverseMercator(latitude, longitude);
        break;
    case ProjectionMethod::Mercator:
    case ProjectionMethod::MercatorStandardParallel:
        place = formulas.mercator(phi, lambda);
        break;
    case ProjectionMethod::LambertOneParallel:
    case ProjectionMethod::LambertTwoParallels:
        place = formulas.lambert(phi, lambda);
        break;
    case ProjectionMethod::Stereographic:
        place = std::abs(parameters.latitude) == 90 ? formulas.polarStereographic(phi, lambda)
                                                    : formulas.obliqueStereographic(phi, lambda);
        break;
    case ProjectionMethod::ObliqueStereographic:
        place = formulas.doubleStereographic(phi, lambda);
        break;
    case ProjectionMethod::ObliqueMercatorAzimuth:
    case ProjectionMethod::ObliqueMercatorTwoPoints:
        place = formulas.obliqueMercator(phi, longitude);
        break;
    case ProjectionMethod::CassiniSoldner:
        place = formulas.cassini(phi, lambda);
        break;
    }
    return {double(parameters.falseEasting + place.east), double(parameters.falseNorthing + place.north)};
}
