#include "Limits.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>

namespace {

using Method = ProjectionMethod;

/// Collects the limits of one method after the other.
class Collection {
public:
    void add(const QByteArray& title, Parameters parameters, double latitude) {
        for (const double inverseFlattening : {298.257222101, 299.1528128, 0.0}) {
            parameters.inverseFlattening = inverseFlattening;
            const QByteArray ellipsoid = inverseFlattening == 0 ? ", sphere" : "";
            limits.push_back({title + ellipsoid, parameters, latitude, parameters.longitude});
        }
    }

    std::vector<Limit> limits;
};

QByteArray text(double value) {
    return QByteArray::number(value, 'g', 15);
}

void addTransverseMercator(Collection& all) {
    for (const double origin : {0.0, 1e-9, 49.0, -90.0, 90.0, 89.9999999}) {
        for (const double meridian : {9.0, 178.0, -180.0}) {
            for (const double middle : {0.0, -49.0, 80.0, 89.9, -90.0}) {
                Parameters p{Method::TransverseMercatorScaled};
                p.latitude = origin;
                p.longitude = meridian;
                p.scale = 0.9996;
                all.add("transverse Mercator, origin " + text(origin) + ", meridian " + text(meridian), p, middle);
            }
        }
    }
}

void addMercator(Collection& all) {
    for (const double middle : {0.0, -30.0, 70.0, 80.0}) {
        Parameters p{Method::Mercator};
        p.longitude = 110;
        p.scale = 0.997;
        all.add("Mercator", p, middle);
    }
    for (const double parallel : {1e-9, 1e-4, 0.1, 42.0, 80.0, 86.0, 89.0, 89.9, 89.999}) {
        Parameters p{Method::MercatorStandardParallel};
        p.longitude = 51;
        p.parallel1 = parallel;
        all.add("Mercator, parallel " + text(parallel), p, std::min(parallel, 80.0));
    }
}

void addStereographic(Collection& all) {
    for (const double parallel : {90.0, 89.9999999, 89.99, 71.0, 1.0, 0.0}) {
        for (const double side : {1.0, -1.0}) {
            for (const double middle : {90.0, 89.9999, 75.0, 30.0}) {
                Parameters p{Method::Stereographic};
                p.latitude = 90 * side;
                p.longitude = -45;
                p.parallel1 = parallel;
                p.scale = parallel == 90.0 ? 0.994 : 1.0;
                all.add("polar stereographic " + text(p.latitude) + ", parallel " + text(parallel), p, middle * side);
            }
        }
    }
    for (const double origin :
         {89.9999999999, -89.99999999, 89.9999, -89.99, 89.0, 60.0, 45.0, 1.0, 1e-4, 1e-9, -1e-9, -1e-11, 0.0}) {
        for (const Method method : {Method::Stereographic, Method::ObliqueStereographic}) {
            // There the reference's own formula loses all of its 34 digits.
            if (method == Method::ObliqueStereographic && origin > 89.99999999)
                continue;
            Parameters p{method};
            p.latitude = origin;
            p.longitude = 25;
            p.parallel1 = 90;
            p.scale = 0.9999;
            all.add((method == Method::Stereographic ? "stereographic, origin " : "double stereographic, origin ") +
                        text(origin),
                    p, origin);
        }
    }
}

void addLambert(Collection& all) {
    for (const double parallel :
         {89.9999999, 89.99, -89.0, 80.0, 46.5, 10.0, 1.0, 0.1, 0.01, -0.01, 1e-3, 1e-4, 1e-5, 1e-7}) {
        for (const double origin : {parallel, parallel - 1, parallel > 0 ? 90.0 : -90.0}) {
            if (origin < -90 || (std::abs(origin) == 90 && std::abs(parallel) < 20))
                continue;
            Parameters p{Method::LambertOneParallel};
            p.latitude = origin;
            p.longitude = 7.5;
            p.parallel1 = parallel;
            p.scale = 0.9998;
            all.add("Lambert, parallel " + text(parallel) + ", origin " + text(origin), p, parallel);
        }
    }
    for (const auto& parallels : std::initializer_list<std::pair<double, double>>{
             {45, 45},          {45, 45 + 1e-12}, {45, 45 + 1e-10}, {45, 45 + 1e-9}, {45, 45 + 6e-9}, {45, 45 + 1e-8},
             {45, 45 + 1e-7},   {45, 45 + 1e-6},  {45, 45 + 1e-5},  {45, 45 + 1e-4}, {45, 45.001},    {45, 45.01},
             {45, 45.1},        {45, 46},         {46, 45},         {0, 10},         {1e-9, 10},      {1e-4, 30},
             {-30, 0},          {60, 89.99},      {60, 89.99999},   {89, 89.9},      {89.9, 89.99},   {-10, 10.001},
             {-10, 10.0000001}, {-10, 10.00001},  {-30, 30.1},      {-20, 35},       {-1, 1.5},       {0, 1e-4},
             {0, 1e-6}}) {
        Parameters p{Method::LambertTwoParallels};
        p.latitude = (parallels.first + parallels.second) / 2;
        p.longitude = 7.5;
        p.parallel1 = parallels.first;
        p.parallel2 = parallels.second;
        all.add("Lambert, parallels " + text(parallels.first) + " and " + text(parallels.second), p, p.latitude);
    }
}

void addObliqueMercator(Collection& all) {
    for (const double centre : {0.0, 1e-3, 4.0, 33.3, 45.0, 46.5, 50.1, -46.5, 60.0, 80.0, -89.0, 89.99}) {
        for (const double azimuth : {0.0,
                                     1e-9,
                                     1e-5,
                                     30.0,
                                     53.3158204722222,
                                     85.0,
                                     89.0,
                                     89.9,
                                     89.99,
                                     89.999,
                                     89.9999,
                                     89.99999,
                                     89.999999,
                                     89.9999999,
                                     90 - 1e-9,
                                     90 - 1e-11,
                                     90.0,
                                     90 + 1e-9,
                                     90.0001,
                                     91.0,
                                     135.0,
                                     180 - 1e-9,
                                     180.0,
                                     225.0,
                                     270.0,
                                     315.0,
                                     323.130102361111,
                                     360.0 - 1e-9,
                                     360.0,
                                     -1e-7,
                                     -45.0,
                                     -89.99,
                                     -89.9999,
                                     -90.0,
                                     -90.001}) {
            Parameters p{Method::ObliqueMercatorAzimuth};
            p.latitude = centre;
            p.longitude = 7.5;
            p.azimuth = azimuth;
            p.scale = 0.99984;
            all.add("oblique Mercator, centre " + text(centre) + ", azimuth " + text(azimuth), p, centre);
        }
    }
    for (const auto& p4 : std::initializer_list<std::array<double, 4>>{{45, 7.5, 47, 7.5},
                                                                       {45, 7.5, 47, 7.5 + 1e-9},
                                                                       {45, 7.5, 47, 7.5 + 1e-5},
                                                                       {46, 7, 47, 8},
                                                                       {46, 8, 47, 7},
                                                                       {46.9, 6, 46.9001, 9},
                                                                       {46, 6, 46.2, 9},
                                                                       {1e-3, 7, 0, 8},
                                                                       {-46, 6, -46.2, 9},
                                                                       {-3, 178, 5, -179},
                                                                       {33.3, 7.5, 33.4, 7.50001},
                                                                       {46.5, 7.5, 46.50001, 8.5},
                                                                       {-1, 5, 1, 10}}) {
        for (const double centre : {p4[0], p4[2], (p4[0] + p4[2]) / 2}) {
            Parameters p{Method::ObliqueMercatorTwoPoints};
            p.latitude = centre;
            p.longitude = p4[1];
            p.lat1 = p4[0];
            p.lon1 = p4[1];
            p.lat2 = p4[2];
            p.lon2 = p4[3];
            p.scale = 0.99984;
            all.add("oblique Mercator, centre " + text(centre) + ", points " + text(p4[0]) + ' ' + text(p4[1]) +
                        " and " + text(p4[2]) + ' ' + text(p4[3]),
                    p, centre);
        }
    }
}

void addCassini(Collection& all) {
    for (const double origin : {0.0, 1e-9, 52.5, -70.0, 80.0}) {
        Parameters p{Method::CassiniSoldner};
        p.latitude = origin;
        p.longitude = 13.6;
        all.add("Cassini-Soldner, origin " + text(origin), p, origin);
    }
}

} // namespace

std::vector<Limit> limits() {
    Collection all;
    addTransverseMercator(all);
    addMercator(all);
    addStereographic(all);
    addLambert(all);
    addObliqueMercator(all);
    addCassini(all);
    return all.limits;
}
