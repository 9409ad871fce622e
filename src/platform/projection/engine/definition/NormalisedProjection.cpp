#include "platform/projection/engine/definition/NormalisedProjection.h"

#include "catalogue/Angle.h"
#include "catalogue/MethodParameters.h"
#include "platform/projection/ProjNumber.h"
#include "platform/projection/engine/definition/Ellipsoid.h"
#include "platform/projection/engine/definition/PrimeMeridian.h"
#include "platform/projection/engine/definition/ProjItems.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

namespace {

using Kind = MethodParameter::Kind;

bool isScale(Kind kind) {
    return kind == Kind::Scale || kind == Kind::ScaleOnParallels || kind == Kind::PolarScale;
}

bool isStandardParallel(Kind kind) {
    return kind == Kind::StandardParallel || kind == Kind::PolarParallel;
}

/// Finds the method that holds a definition's projection, and the values of its parameters.
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

    struct Source {
        const char* projName;
        ProjectionMethod method;
        void (Normaliser::*settle)();
    };
    static const Source sources[];

private:
    void chooseMethod();
    void settleUtm();
    void settleMercator();
    void settleObliqueMercator();
    void settleSwissObliqueMercator();
    void settleStereographic();
    void settleUps();
    void settleLambert();

    void moveFalseOriginToCentre();
    void settle(const char* key, double value) { settled.insert(key, value); }
    double value(const MethodParameter& parameter) const;
    double longitude(const char* key) const { return fromGreenwich(items.angle(key, 0), primeMeridian); }
    void add(const char* key, double value) {
        require(std::isfinite(value));
        text += QByteArray(" +") + key + '=' + projNumber(value);
    }
    /// What PROJ refuses otherwise.
    void require(bool condition) { valid = valid && condition; }

    const ProjItems& items;
    const Ellipsoid& ellipsoid;
    double primeMeridian;
    double scale;
    double falseEasting;
    double falseNorthing;
    std::optional<ProjectionMethod> method;
    QHash<QByteArray, double> settled; ///< parameters whose value is not simply that of the item with their key
    QByteArray text;
    bool valid = true;
};

QByteArray Normaliser::normalise() {
    chooseMethod();
    const MethodParameters* const parameters = method ? MethodParameters::find(int(*method)) : nullptr;
    if (!parameters)
        return {};
    text = QByteArray("+proj=") + parameters->projName;
    for (const MethodParameter* const parameter : *parameters) {
        const bool isNone = isStandardParallel(parameter->kind) && !settled.contains(parameter->projKey);
        if (isScale(parameter->kind) || parameter->kind == Kind::Length || isNone)
            continue;
        const double number = value(*parameter);
        if (parameter->kind == Kind::Latitude || isStandardParallel(parameter->kind))
            require(std::abs(number) <= 90);
        add(parameter->projKey, number);
    }
    require(scale > 0);
    add("k_0", scale);
    add("x_0", falseEasting);
    add("y_0", falseNorthing);
    return valid ? text : QByteArray();
}

double Normaliser::value(const MethodParameter& parameter) const {
    const auto known = settled.constFind(parameter.projKey);
    if (known != settled.constEnd())
        return *known;
    return parameter.kind == Kind::Longitude ? longitude(parameter.projKey) : items.angle(parameter.projKey, 0);
}

const Normaliser::Source Normaliser::sources[] = {
    {"tmerc", ProjectionMethod::TransverseMercatorScaled, nullptr},
    {"utm", ProjectionMethod::TransverseMercatorScaled, &Normaliser::settleUtm},
    {"merc", ProjectionMethod::Mercator, &Normaliser::settleMercator},
    {"omerc", ProjectionMethod::ObliqueMercatorAzimuth, &Normaliser::settleObliqueMercator},
    {"somerc", ProjectionMethod::ObliqueMercatorAzimuth, &Normaliser::settleSwissObliqueMercator},
    {"stere", ProjectionMethod::Stereographic, &Normaliser::settleStereographic},
    {"ups", ProjectionMethod::Stereographic, &Normaliser::settleUps},
    {"sterea", ProjectionMethod::ObliqueStereographic, nullptr},
    {"lcc", ProjectionMethod::LambertOneParallel, &Normaliser::settleLambert},
    {"cass", ProjectionMethod::CassiniSoldner, nullptr},
};

void Normaliser::chooseMethod() {
    const QByteArray name = items.count("proj") == 1 ? items.text("proj") : QByteArray();
    for (const Source& source : sources) {
        if (name != source.projName)
            continue;
        method = source.method;
        if (source.settle)
            (this->*source.settle)();
    }
}

void Normaliser::settleUtm() {
    // PROJ takes the zone from the central meridian when none is given.
    const double zone = items.number("zone", std::floor((fromGreenwich(items.angle("lon_0", 0), 0) + 180) / 6) + 1);
    require(zone >= 1 && zone <= 60 && zone == std::floor(zone));
    scale = 0.9996;
    falseEasting = 500000;
    falseNorthing = items.has("south") ? 10000000 : 0;
    settle("lat_0", 0);
    settle("lon_0", fromGreenwich(zone * 6 - 183, primeMeridian));
}

void Normaliser::settleMercator() {
    if (!items.has("lat_ts"))
        return;
    // A standard parallel gives the scale; a factor beside it plays no part.
    scale = 1;
    const double parallel = items.angle("lat_ts", 0);
    require(std::abs(parallel) < 90);
    if (parallel == 0)
        return;
    method = ProjectionMethod::MercatorStandardParallel;
    settle("lat_ts", parallel);
}

void Normaliser::settleObliqueMercator() {
    if (items.has("alpha")) {
        if (items.has("no_uoff") || items.has("no_off"))
            moveFalseOriginToCentre();
    } else if (items.has("gamma")) {
        method.reset();
    } else {
        method = ProjectionMethod::ObliqueMercatorTwoPoints;
    }
}

/// From the natural origin to the projection centre lies the distance u_c along the central line, in EPSG guidance note
/// 7-2: u_c = (A / B) atan(sqrt(D^2 - 1) / cos(alpha_c)) sign(phi_c).
void Normaliser::moveFalseOriginToCentre() {
    const double phi = Angle::toRadians(items.angle("lat_0", 0));
    const double alpha = Angle::toRadians(items.angle("alpha", 0));
    const double e2 = ellipsoid.e2();
    const double w2 = 1 - e2 * std::pow(std::sin(phi), 2);
    const double B = std::sqrt(1 + e2 * std::pow(std::cos(phi), 4) / (1 - e2));
    const double A = ellipsoid.a * B * scale * std::sqrt(1 - e2) / w2;
    const double D = std::max(1.0, B * std::sqrt(1 - e2) / (std::cos(phi) * std::sqrt(w2)));
    const double uc = std::copysign(A / B * std::atan(std::sqrt(D * D - 1) / std::cos(alpha)), phi);
    falseEasting += uc * std::sin(alpha);
    falseNorthing += uc * std::cos(alpha);
}

void Normaliser::settleSwissObliqueMercator() {
    settle("lonc", longitude("lon_0"));
    settle("alpha", 90);
}

void Normaliser::settleStereographic() {
    const double latitude = items.angle("lat_0", 0);
    const double parallel = std::abs(items.angle("lat_ts", 90));
    // PROJ knows a standard parallel on polar ones only; at the pole itself it is the factor that counts.
    if (std::abs(latitude) == 90 && parallel != 90) {
        settle("lat_ts", std::copysign(parallel, latitude));
        scale = 1;
    }
}

void Normaliser::settleUps() {
    scale = 0.994;
    falseEasting = 2000000;
    falseNorthing = 2000000;
    settle("lat_0", items.has("south") ? -90 : 90);
    settle("lon_0", fromGreenwich(0, primeMeridian));
}

void Normaliser::settleLambert() {
    const double latitude = items.angle("lat_1", 0);
    const bool twoParallels = items.has("lat_2");
    const double other = twoParallels ? items.angle("lat_2", 0) : latitude;
    require(std::abs(latitude) < 90 && std::abs(other) < 90 && std::abs(latitude + other) > 1e-8);
    if (twoParallels)
        method = ProjectionMethod::LambertTwoParallels;
    else
        settle("lat_0", items.angle("lat_0", latitude));
}

/// The parameter that an item of a definition states, or null.
const MethodParameter* parameterOf(const QByteArray& projKey) {
    for (const MethodParameters& method : methodParameters) {
        for (const MethodParameter* const parameter : method) {
            if (projKey == parameter->projKey)
                return parameter;
        }
    }
    return nullptr;
}

} // namespace

QByteArray normalisedProjection(const ProjItems& items, const Ellipsoid& ellipsoid) {
    return Normaliser(items, ellipsoid).normalise();
}

bool isKnownProjection(const QByteArray& projName) {
    return std::any_of(std::begin(Normaliser::sources), std::end(Normaliser::sources),
                       [&projName](const Normaliser::Source& source) { return projName == source.projName; });
}

QByteArray parametersWithoutProjection(const ProjItems& items) {
    const double primeMeridian = primeMeridianOf(items);
    QByteArray text;
    for (const ProjItems::Item& item : items.all()) {
        const MethodParameter* const parameter = parameterOf(item.key);
        if (!parameter || isScale(parameter->kind) || isStandardParallel(parameter->kind))
            continue;
        const bool isLength = parameter->kind == Kind::Length;
        double value = isLength ? ProjItems::toNumber(item.value) : ProjItems::toAngle(item.value);
        if (parameter->kind == Kind::Longitude)
            value = fromGreenwich(value, primeMeridian);
        if (std::isfinite(value))
            text += '+' + item.key + '=' + projNumber(value) + ' ';
    }
    return text.trimmed();
}
