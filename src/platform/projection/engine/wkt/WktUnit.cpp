#include "platform/projection/engine/wkt/WktUnit.h"

#include "catalogue/Angle.h"
#include "platform/projection/engine/definition/ProjItems.h"
#include "platform/projection/engine/wkt/PlainName.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace {

constexpr double none = std::numeric_limits<double>::quiet_NaN();
constexpr double rounding = 1e-5; // of a factor in some texts, as a part of it
constexpr double known = 1e-10;   // to which PROJ compares factors

double differenceOf(double factor, double exact) {
    return std::abs(factor / exact - 1);
}

WktUnit asExact(double factor, double exact) {
    return {exact, differenceOf(factor, exact) >= known};
}

struct NamedUnit {
    const char* name; ///< plain
    double factor;
};

constexpr double degree = Angle::toRadians(1);
constexpr double grad = Angle::toRadians(0.9);
constexpr double surveyFoot = 1200.0 / 3937;
constexpr double searsFoot = 12 / 39.370147;
constexpr NamedUnit namedUnits[] = {
    {"degree", degree},
    {"degrees", degree},
    {"grad", grad},
    {"grads", grad},
    {"gon", grad},
    {"radian", 1},
    {"radians", 1},
    {"metre", 1},
    {"metres", 1},
    {"meter", 1},
    {"meters", 1},
    {"kilometre", 1000},
    {"kilometres", 1000},
    {"kilometer", 1000},
    {"kilometers", 1000},
    {"footus", surveyFoot},
    {"usfoot", surveyFoot},
    {"ussurveyfoot", surveyFoot},
    {"ussurveyfeet", surveyFoot},
    {"arcsecond", degree / 3600},
    {"second", degree / 3600},
    {"arcminute", degree / 60},
    {"minute", degree / 60},
    {"clarkesfoot", 0.3047972654},
    {"footclarke", 0.3047972654},
    {"britishfootsears1922", searsFoot},
    {"footsears", searsFoot},
    {"britishchainsears1922", 66 * searsFoot},
    {"chainsears", 66 * searsFoot},
    {"indianfoot", 12 / 39.370142},
    {"footindian", 12 / 39.370142},
    {"goldcoastfoot", 6378300 / 20926201.0},
    {"footgoldcoast", 6378300 / 20926201.0},
    {"link", 0.201168},
    {"germanlegalmetre", 1.0000135965},
    {"metergerman", 1.0000135965},
};

/// The feet and yards of EPSG's registry whose factors have fewer than ten digits.
constexpr double shortFactors[] = {0.3048,   0.30479841, 0.3047996,  0.3047995, 0.9144,
                                   0.914398, 0.9143992,  0.91439523, 0.9143988, 0.9143985};

int digitsOf(std::string_view number) {
    const std::string_view mantissa = number.substr(0, number.find_first_of("eE"));
    const std::size_t first = mantissa.find_first_of("123456789");
    return first == std::string_view::npos ? 0
                                           : int(std::count_if(mantissa.begin() + std::ptrdiff_t(first), mantissa.end(),
                                                               [](char c) { return c >= '0' && c <= '9'; }));
}

/// The feet and yards of the world differ in the fifth digit.
bool isFootOrYard(double factor, int digits) {
    const bool isNear = differenceOf(factor, 0.3048) < 1e-4 || differenceOf(factor, 0.9144) < 1e-4;
    constexpr int enough = 10;
    return isNear && (digits >= enough ||
                      std::find(std::begin(shortFactors), std::end(shortFactors), factor) != std::end(shortFactors));
}

} // namespace

WktUnit WktUnit::read(std::string_view name, std::string_view factor) {
    const double number = ProjItems::toNumber(QByteArray(factor.data(), int(factor.size())));
    if (!(number > 0))
        return {none, false};
    const QByteArray plain = plainName(QByteArray(name.data(), int(name.size())));
    for (const NamedUnit& unit : namedUnits) {
        if (plain == unit.name)
            return differenceOf(number, unit.factor) < rounding ? asExact(number, unit.factor) : WktUnit{none, false};
    }
    const bool isNamedFoot = plain.contains("foot") || plain.contains("feet") || plain.contains("yard");
    return {isNamedFoot && !isFootOrYard(number, digitsOf(factor)) ? none : number, false};
}

WktUnit WktUnit::ofAngles(double factor) {
    constexpr double another = 1e-2;
    for (const double exact : {degree, grad}) {
        if (differenceOf(factor, exact) < another)
            return differenceOf(factor, exact) < rounding ? asExact(factor, exact) : WktUnit{none, false};
    }
    return {factor, false};
}
