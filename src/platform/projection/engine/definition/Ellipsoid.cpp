#include "platform/projection/engine/definition/Ellipsoid.h"

#include "platform/projection/ProjNumber.h"
#include "platform/projection/engine/definition/Datum.h"
#include "platform/projection/engine/definition/ProjItems.h"

#include <QHash>

#include <proj.h>

#include <cmath>

namespace {

/// b from the item that gives the shape, the first of PROJ's order; `fallback` when none does.
double semiMinorAxis(const ProjItems& items, double a, double fallback) {
    if (items.has("rf"))
        return a - a / items.number("rf", 0);
    if (items.has("f"))
        return a - a * items.number("f", 0);
    if (items.has("es"))
        return a * std::sqrt(1 - items.number("es", 0));
    if (items.has("e"))
        return a * std::sqrt(1 - std::pow(items.number("e", 0), 2));
    return items.number("b", fallback);
}

bool hasShape(const ProjItems& items) {
    return items.has("rf") || items.has("f") || items.has("es") || items.has("e") || items.has("b");
}

/// PROJ's list: "a=6378137.0" with "rf=298.257222101" or "b=6356752.3" for each.
QHash<QByteArray, Ellipsoid> namedEllipsoids() {
    QHash<QByteArray, Ellipsoid> ellipsoids;
    for (const PJ_ELLPS* named = proj_list_ellps(); named->id; ++named) {
        const ProjItems axes(QByteArray(named->major) + ' ' + named->ell);
        const double a = axes.number("a", 0);
        Ellipsoid ellipsoid;
        ellipsoid.id = named->id;
        ellipsoid.a = a;
        ellipsoid.b = semiMinorAxis(axes, a, a);
        ellipsoids.insert(named->id, ellipsoid);
    }
    return ellipsoids;
}

} // namespace

bool Ellipsoid::readNamed(const QByteArray& name) {
    static const QHash<QByteArray, Ellipsoid> named = namedEllipsoids();
    const auto found = named.constFind(name);
    if (found == named.constEnd())
        return false;
    *this = *found;
    return true;
}

bool Ellipsoid::read(const ProjItems& items) {
    const Datum* const datum = items.has("datum") ? Datum::named(items.text("datum")) : nullptr;
    const bool isNamed = items.has("ellps") || datum;
    if (items.has("ellps") ? !readNamed(items.text("ellps"))
                           : items.has("datum") && !(datum && readNamed(datum->ellipsoid)))
        return false;
    if (items.has("R") || items.has("a") || hasShape(items)) {
        id.clear();
        const double inverseFlattening = a == b ? 0 : a / (a - b);
        const double namedAxis = items.has("a") || isNamed ? a : std::nan("");
        a = items.number(items.has("R") ? "R" : "a", namedAxis);
        // A new axis keeps the named shape; an axis alone is a sphere.
        const double namedB = isNamed && inverseFlattening != 0 ? a - a / inverseFlattening : a;
        b = items.has("R") ? a : semiMinorAxis(items, a, namedB);
    }
    return std::isfinite(a) && std::isfinite(b) && a > 0 && b > 0 && b <= a;
}

QByteArray Ellipsoid::definition() const {
    return id.isEmpty() ? " +a=" + projNumber(a) + " +b=" + projNumber(b) : " +ellps=" + id;
}
