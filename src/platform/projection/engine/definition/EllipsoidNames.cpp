#include "platform/projection/engine/definition/EllipsoidNames.h"

#include "platform/projection/engine/proj/ProjContext.h"
#include "platform/projection/engine/proj/ProjObject.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace {

double inverseFlattening(double a, double b) {
    return a == b ? std::numeric_limits<double>::infinity() : a / (a - b);
}

bool sameAxes(double a, double b, double otherA, double otherB) {
    constexpr double decimals4 = 0.6e-4;
    constexpr double decimals6 = 0.6e-6;
    if (std::abs(a - otherA) > decimals4)
        return false;
    return std::abs(b - otherB) < decimals4 ||
           std::abs(inverseFlattening(a, b) - inverseFlattening(otherA, otherB)) < decimals6;
}

} // namespace

void EllipsoidNames::readRegistry() {
    const auto codes = proj_get_codes_from_database(context.get(), "EPSG", PJ_TYPE_ELLIPSOID, 1);
    for (auto code = codes; code && *code; ++code) {
        const ProjObject ellipsoid(
            proj_create_from_database(context.get(), "EPSG", *code, PJ_CATEGORY_ELLIPSOID, 0, nullptr));
        double a = 0;
        double b = 0;
        if (!ellipsoid || !proj_ellipsoid_get_parameters(context.get(), ellipsoid.get(), &a, &b, nullptr, nullptr))
            continue;
        // The registry's first codes are 7001 and up; those below were given later.
        const int number = QByteArray(*code).toInt();
        const int age = number >= 7000 ? number : number + 10000;
        entries.append({proj_is_deprecated(ellipsoid.get()) != 0, age, proj_get_name(ellipsoid.get()), a, b});
    }
    proj_string_list_destroy(codes);
    std::sort(entries.begin(), entries.end(), [](const Entry& left, const Entry& right) {
        return std::tie(left.deprecated, left.age) < std::tie(right.deprecated, right.age);
    });
}

QByteArray EllipsoidNames::nameOf(double a, double b) {
    if (entries.isEmpty())
        readRegistry();
    QByteArray name;
    double nearest = std::numeric_limits<double>::infinity();
    for (const Entry& entry : qAsConst(entries)) {
        const double distance = std::abs(a - entry.a) + std::abs(b - entry.b);
        if (distance < nearest && sameAxes(a, b, entry.a, entry.b)) {
            nearest = distance;
            name = entry.name;
        }
    }
    return name;
}
