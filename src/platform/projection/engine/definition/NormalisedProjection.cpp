#include "platform/projection/engine/definition/NormalisedProjection.h"

#include "platform/projection/ProjNumber.h"
#include "platform/projection/engine/definition/Ellipsoid.h"
#include "platform/projection/engine/definition/PrimeMeridian.h"
#include "platform/projection/engine/definition/ProjItems.h"

#include <cmath>

namespace {

constexpr double radians = 3.141592653589793 / 180;

class Normaliser {
public:
    Normaliser(const ProjItems& items, const Ellipsoid& ellipsoid)
        : items(items)
        , ellipsoid(ellipsoid)
        , primeMeridian(primeMeridianOf(items))
        , scale(items.number(items.has("k_0") ? "k_0" : "k", 1))
        , falseEasting(items.number("x_0", 0))
        , falseNorthing(items.number("y_0", 0)) {}

    QByteArray normalise();

private:
    void addUtm();
    void addMercator();
    void addObliqueMercator();
    void addCentralLine();
    void addTwoPoints();
    void addSwissObliqueMercator();
    void addStereographic();
    void addUps();
    void addLambert();
    void addOriginOf(const char* projection);

    void moveFalseOriginToCentre(double latitude, double azimuth);
    double longitude(const char* key) const { return fromGreenwich(items.angle(key, 0), primeMeridian); }

    void start(const char* projection) { text = QByteArray("+proj=") + projection; }
    void add(const char* key, double value) {
        require(std::isfinite(value));
        text += QByteArray(" +") + key + '=' + projNumber(value);
    }
    void addLatitude(const char* key, double value) {
        require(std::abs(value) <= 90);
        add(key, value);
    }
    /// What PROJ refuses otherwise.
    void require(bool condition) { valid = valid && condition; }

    const ProjItems& items;
    const Ellipsoid& ellipsoid;
    double primeMeridian;
    double scale;
    double falseEasting;
    double falseNorthing;
    QByteArray text;
    bool valid = true;
};

QByteArray Normaliser::normalise() {
    struct Projection {
        const char* name;
        void (Normaliser::*add)();
    };
    static constexpr Projection projections[] = {
        {"utm", &Normaliser::addUtm},
        {"merc", &Normaliser::addMercator},
        {"omerc", &Normaliser::addObliqueMercator},
        {"somerc", &Normaliser::addSwissObliqueMercator},
        {"stere", &Normaliser::addStereographic},
        {"ups", &Normaliser::addUps},
        {"lcc", &Normaliser::addLambert},
    };
    const QByteArray name = items.count("proj") == 1 ? items.text("proj") : QByteArray();
    for (const Projection& projection : projections) {
        if (name == projection.name)
            (this->*projection.add)();
    }
    for (const char* plain : {"tmerc", "sterea", "cass"}) {
        if (name == plain)
            addOriginOf(plain);
    }
    if (text.isEmpty())
        return text;
    require(scale > 0);
    add("k_0", scale);
    add("x_0", falseEasting);
    add("y_0", falseNorthing);
    return valid ? text : QByteArray();
}

void Normaliser::addOriginOf(const char* projection) {
    start(projection);
    addLatitude("lat_0", items.angle("lat_0", 0));
    add("lon_0", longitude("lon_0"));
}

void Normaliser::addUtm() {
    // PROJ takes the zone from the central meridian when none is given.
    const double zone = items.number("zone", std::floor((fromGreenwich(items.angle("lon_0", 0), 0) + 180) / 6) + 1);
    require(zone >= 1 && zone <= 60 && zone == std::floor(zone));
    scale = 0.9996;
    falseEasting = 500000;
    falseNorthing = items.has("south") ? 10000000 : 0;
    start("tmerc");
    addLatitude("lat_0", 0);
    add("lon_0", fromGreenwich(zone * 6 - 183, primeMeridian));
}

void Normaliser::addMercator() {
    start("merc");
    add("lon_0", longitude("lon_0"));
    if (!items.has("lat_ts"))
        return;
    // A parallel of true scale gives the scale; a factor beside it plays no part.
    scale = 1;
    const double trueScale = items.angle("lat_ts", 0);
    require(std::abs(trueScale) < 90);
    if (trueScale != 0)
        addLatitude("lat_ts", trueScale);
}

void Normaliser::addObliqueMercator() {
    if (items.has("alpha"))
        addCentralLine();
    else if (!items.has("gamma"))
        addTwoPoints();
}

void Normaliser::addCentralLine() {
    const double latitude = items.angle("lat_0", 0);
    const double azimuth = items.angle("alpha", 0);
    if (items.has("no_uoff") || items.has("no_off"))
        moveFalseOriginToCentre(latitude, azimuth);
    start("omerc");
    addLatitude("lat_0", latitude);
    add("lonc", longitude("lonc"));
    add("alpha", azimuth);
}

void Normaliser::addTwoPoints() {
    start("omerc");
    addLatitude("lat_0", items.angle("lat_0", 0));
    addLatitude("lat_1", items.angle("lat_1", 0));
    add("lon_1", longitude("lon_1"));
    addLatitude("lat_2", items.angle("lat_2", 0));
    add("lon_2", longitude("lon_2"));
}

/// From the natural origin to the projection centre lies the distance u_c along the central line, in EPSG guidance note
/// 7-2: u_c = (A / B) atan(sqrt(D^2 - 1) / cos(alpha_c)) sign(phi_c).
void Normaliser::moveFalseOriginToCentre(double latitude, double azimuth) {
    const double phi = latitude * radians;
    const double alpha = azimuth * radians;
    const double e2 = 1 - std::pow(ellipsoid.b / ellipsoid.a, 2);
    const double w2 = 1 - e2 * std::pow(std::sin(phi), 2);
    const double B = std::sqrt(1 + e2 * std::pow(std::cos(phi), 4) / (1 - e2));
    const double A = ellipsoid.a * B * scale * std::sqrt(1 - e2) / w2;
    const double D = std::max(1.0, B * std::sqrt(1 - e2) / (std::cos(phi) * std::sqrt(w2)));
    const double uc = std::copysign(A / B * std::atan(std::sqrt(D * D - 1) / std::cos(alpha)), phi);
    falseEasting += uc * std::sin(alpha);
    falseNorthing += uc * std::cos(alpha);
}

void Normaliser::addSwissObliqueMercator() {
    start("omerc");
    addLatitude("lat_0", items.angle("lat_0", 0));
    add("lonc", longitude("lon_0"));
    add("alpha", 90);
}

void Normaliser::addStereographic() {
    addOriginOf("stere");
    const double latitude = items.angle("lat_0", 0);
    const double trueScale = std::abs(items.angle("lat_ts", 90));
    // PROJ knows a parallel of true scale on polar ones only; at the pole itself it is the factor that counts.
    if (std::abs(latitude) != 90 || trueScale == 90)
        return;
    addLatitude("lat_ts", std::copysign(trueScale, latitude));
    scale = 1;
}

void Normaliser::addUps() {
    scale = 0.994;
    falseEasting = 2000000;
    falseNorthing = 2000000;
    start("stere");
    addLatitude("lat_0", items.has("south") ? -90 : 90);
    add("lon_0", fromGreenwich(0, primeMeridian));
}

void Normaliser::addLambert() {
    const double latitude = items.angle("lat_1", 0);
    const bool twoParallels = items.has("lat_2");
    const double other = twoParallels ? items.angle("lat_2", 0) : latitude;
    require(std::abs(latitude) < 90 && std::abs(other) < 90 && std::abs(latitude + other) > 1e-8);
    start("lcc");
    addLatitude("lat_1", latitude);
    if (twoParallels)
        addLatitude("lat_2", other);
    addLatitude("lat_0", items.angle("lat_0", twoParallels ? 0 : latitude));
    add("lon_0", longitude("lon_0"));
}

} // namespace

QByteArray normalisedProjection(const ProjItems& items, const Ellipsoid& ellipsoid) {
    return Normaliser(items, ellipsoid).normalise();
}

QByteArray parametersWithoutProjection(const ProjItems& items) {
    const double primeMeridian = primeMeridianOf(items);
    QByteArray text;
    for (const ProjItems::Item& item : items.all()) {
        const bool isLongitude =
            item.key == "lon_0" || item.key == "lonc" || item.key == "lon_1" || item.key == "lon_2";
        const bool isLatitude =
            item.key == "lat_0" || item.key == "lat_1" || item.key == "lat_2" || item.key == "alpha";
        const bool isLength = item.key == "x_0" || item.key == "y_0";
        if (!isLongitude && !isLatitude && !isLength)
            continue;
        double value = isLength ? ProjItems::toNumber(item.value) : ProjItems::toAngle(item.value);
        if (isLongitude)
            value = fromGreenwich(value, primeMeridian);
        if (std::isfinite(value))
            text += '+' + item.key + '=' + projNumber(value) + ' ';
    }
    return text.trimmed();
}
