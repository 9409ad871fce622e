#include "platform/projection/engine/definition/DefinedProjection.h"

#include "platform/projection/engine/definition/Ellipsoid.h"
#include "platform/projection/engine/definition/PrimeMeridian.h"
#include "platform/projection/engine/definition/ProjItems.h"
#include "platform/projection/engine/plane/LambertConformal.h"
#include "platform/projection/engine/plane/ObliqueMercator.h"
#include "platform/projection/engine/plane/OperationOfProj.h"
#include "platform/projection/engine/plane/SineCosine.h"
#include "platform/projection/engine/plane/Stereographic.h"
#include "platform/projection/engine/proj/ProjContext.h"
#include "platform/projection/engine/proj/ProjObject.h"

#include <QByteArrayList>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// Makes the projections of engine/plane from a definition's items, which PROJ accepts.
class Maker {
public:
    explicit Maker(const ProjItems& items) : items(items), primeMeridian(primeMeridianOf(items)) {
        known = ellipsoid.read(items) && std::isfinite(primeMeridian) &&
                (!items.has("units") || items.text("units") == "m");
    }

    struct Method {
        const char* projName;
        const char* keys; ///< the items that the method knows
        std::unique_ptr<PlaneProjection> (Maker::*make)() const;
    };
    static const Method methods[];

    /// Whether it is an oblique Mercator projection by its azimuth, with values in their ranges. Near the azimuth 90
    /// PROJ refuses one in 20.
    bool isSoundByAzimuth() const {
        constexpr double northernmost = 89.99999; // as PROJ has it
        return items.text("proj") == "omerc" && items.has("alpha") && std::abs(angle("lat_0")) < northernmost &&
               scale() > 0;
    }

    double semiMajorAxis() const { return ellipsoid.a; }

    /// Null where an item is unknown or no number: PROJ may know what it means.
    std::unique_ptr<PlaneProjection> make() const;

    std::unique_ptr<PlaneProjection> obliqueMercator() const;
    std::unique_ptr<PlaneProjection> transverseMercator() const;
    std::unique_ptr<PlaneProjection> stereographic() const;
    std::unique_ptr<PlaneProjection> doubleStereographic() const;
    std::unique_ptr<PlaneProjection> lambert() const;

private:
    bool knows(const char* keys) const;
    double angle(const char* key) const { return items.angle(key, 0); }
    double longitude(const char* key) const { return fromGreenwich(angle(key), primeMeridian); }
    double scale() const { return items.number(items.has("k_0") ? "k_0" : "k", 1); }
    double falseEasting() const { return items.number("x_0", 0); }
    double falseNorthing() const { return items.number("y_0", 0); }

    const ProjItems& items;
    double primeMeridian;
    Ellipsoid ellipsoid;
    bool known;
};

const Maker::Method Maker::methods[] = {
    {"omerc", "lat_0 lonc lon_0 alpha gamma lat_1 lon_1 lat_2 lon_2", &Maker::obliqueMercator},
    {"tmerc", "lat_0 lon_0", &Maker::transverseMercator},
    {"stere", "lat_0 lon_0 lat_ts", &Maker::stereographic},
    {"sterea", "lat_0 lon_0", &Maker::doubleStereographic},
    {"lcc", "lat_0 lon_0 lat_1 lat_2", &Maker::lambert},
};

std::unique_ptr<PlaneProjection> Maker::make() const {
    for (const Method& method : methods) {
        if (items.text("proj") == method.projName && known && knows(method.keys))
            return (this->*method.make)();
    }
    return nullptr;
}

bool Maker::knows(const char* keys) const {
    static const QByteArrayList numbers = QByteArray("k k_0 x_0 y_0 a b rf f R es e").split(' ');
    static const QByteArrayList words =
        QByteArray("proj ellps datum pm units no_defs type title wktext no_uoff no_off").split(' ');
    const QByteArrayList angles = QByteArray(keys).split(' ');
    return std::all_of(items.all().begin(), items.all().end(), [&](const ProjItems::Item& item) {
        return words.contains(item.key) ||
               (angles.contains(item.key) && std::isfinite(ProjItems::toAngle(item.value))) ||
               (numbers.contains(item.key) && std::isfinite(ProjItems::toNumber(item.value)));
    });
}

/// The azimuth of the line that the guidance note's formulas take for an azimuth, of which they use the sine only. The
/// grid is turned by the azimuth as it is given.
double azimuthOfLine(double azimuth) {
    const double turn = std::remainder(azimuth, 360);
    return std::abs(turn) > 90 ? std::copysign(180, turn) - turn : turn;
}

std::unique_ptr<PlaneProjection> Maker::obliqueMercator() const {
    const double azimuth = angle("alpha");
    ObliqueMercator::Parameters parameters{ellipsoid.a,       ellipsoid.e2(),         angle("lat_0"),
                                           longitude("lonc"), azimuthOfLine(azimuth), items.angle("gamma", azimuth),
                                           scale(),           falseEasting(),         falseNorthing()};
    if (!items.has("alpha")) {
        const auto throughPlaces = ObliqueMercator::throughPlaces(parameters, {angle("lat_1"), longitude("lon_1"), 0},
                                                                  {angle("lat_2"), longitude("lon_2"), 0});
        return throughPlaces && !items.has("gamma") ? std::make_unique<ObliqueMercator>(*throughPlaces) : nullptr;
    }
    if (items.has("no_uoff") || items.has("no_off")) {
        // The false origin is the natural one (EPSG method 9812), which lies back along the line.
        const double distance = ObliqueMercator::distanceFromNaturalOrigin(parameters);
        const SineCosine grid(parameters.gridAngle);
        parameters.eastingAtCentre += distance * grid.sine;
        parameters.northingAtCentre += distance * grid.cosine;
    }
    return std::make_unique<ObliqueMercator>(parameters);
}

/// PROJ's formula for a sphere has an arc cosine of a number near 1: off by 0.09 m on the equator.
std::unique_ptr<PlaneProjection> Maker::transverseMercator() const {
    if (ellipsoid.a != ellipsoid.b)
        return nullptr;
    // Counted from the equator, no northing ends at a pole.
    const double northing = falseNorthing() - ellipsoid.a * scale() * proj_torad(angle("lat_0"));
    return std::make_unique<ObliqueMercator>(
        ObliqueMercator::Parameters{ellipsoid.a, 0, 0, longitude("lon_0"), 0, 0, scale(), falseEasting(), northing});
}

std::unique_ptr<PlaneProjection> Maker::stereographic() const {
    const auto sphereOf = [&](double latitude) {
        return ConformalSphere::ofConformalLatitudes(ellipsoid.a, ellipsoid.e2(), latitude);
    };
    const double latitude = angle("lat_0");
    const ConformalSphere sphere = sphereOf(latitude);
    double factor = scale();
    const double parallel = std::abs(items.angle("lat_ts", 90));
    if (std::abs(latitude) == 90 && parallel != 90) {
        // On the sphere of scale 1 at the parallel, the projection's scale there is 2 / (1 + sine), to be divided by.
        const ConformalSphere atParallel = sphereOf(parallel);
        factor = atParallel.radius() / sphere.radius() * (1 + atParallel.sine()) / 2;
    }
    return std::make_unique<Stereographic>(sphere, longitude("lon_0"), factor, falseEasting(), falseNorthing());
}

std::unique_ptr<PlaneProjection> Maker::doubleStereographic() const {
    return std::make_unique<Stereographic>(ConformalSphere::fitting(ellipsoid.a, ellipsoid.e2(), angle("lat_0")),
                                           longitude("lon_0"), scale(), falseEasting(), falseNorthing());
}

std::unique_ptr<PlaneProjection> Maker::lambert() const {
    const double parallel = angle("lat_1");
    const bool isOne = !items.has("lat_2");
    const LambertConformal::Parameters parameters{ellipsoid.a,
                                                  ellipsoid.e2(),
                                                  items.angle("lat_0", isOne ? parallel : 0),
                                                  longitude("lon_0"),
                                                  parallel,
                                                  isOne ? parallel : angle("lat_2"),
                                                  scale(),
                                                  falseEasting(),
                                                  falseNorthing()};
    return std::make_unique<LambertConformal>(parameters);
}

} // namespace

std::unique_ptr<PlaneProjection> definedProjection(const ProjContext& context, const QByteArray& definition) {
    const ProjItems items(definition);
    const Maker maker(items);
    auto projection = maker.make();
    if (projection && maker.isSoundByAzimuth())
        return projection;
    const ProjObject crs(proj_create(context.get(), (definition + " +type=crs").constData()));
    ProjObject operation(proj_create(context.get(), definition.constData()));
    if (!operation || !crs || proj_get_type(crs.get()) != PJ_TYPE_PROJECTED_CRS)
        return nullptr;
    if (projection)
        return projection;
    // PROJ's inverse of cass closes to 5e-6 m.
    return std::make_unique<OperationOfProj>(std::move(operation), maker.semiMajorAxis(), items.text("proj") == "cass");
}
