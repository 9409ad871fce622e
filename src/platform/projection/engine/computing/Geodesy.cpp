#include "platform/projection/engine/computing/Geodesy.h"

#include "platform/projection/engine/computing/ProjectedSystem.h"
#include "platform/projection/engine/definition/DatumShift.h"
#include "platform/projection/engine/definition/DefinedProjection.h"
#include "platform/projection/engine/definition/Ellipsoid.h"
#include "platform/projection/engine/definition/ProjItems.h"
#include "platform/projection/engine/proj/BoundSystem.h"
#include "platform/projection/engine/proj/ProjContext.h"

#include <QByteArrayList>

#include <proj_experimental.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <utility>

namespace {

/// The two parts of a definition.
struct DefinitionParts {
    QByteArray projection; ///< everything but the shift
    QByteArray shift;      ///< the values of +towgs84, or empty
};

DefinitionParts splitDefinition(const QByteArray& definition) {
    const QByteArray shiftKey = "+towgs84=";
    DefinitionParts parts;
    for (const QByteArray& item : definition.simplified().split(' ')) {
        if (item.startsWith(shiftKey))
            parts.shift = item.mid(shiftKey.size());
        else if (item != "+type=crs")
            parts.projection += item + ' ';
    }
    return parts;
}

ProjObject parsedSystem(PJ_CONTEXT* context, const QByteArray& definition) {
    return ProjObject(proj_create(context, (definition + " +type=crs").constData()));
}

/// PROJ's reader of definitions takes a second standard parallel that is not there for 0 where the origin lies off the
/// first; its projection takes it for the first.
QByteArray withBothParallels(const QByteArray& definition) {
    const QByteArray key = "+lat_1=";
    const int at = definition.indexOf(key);
    if (!definition.startsWith("+proj=lcc ") || at < 0 || definition.contains("+lat_2="))
        return definition;
    const QByteArray parallel = definition.mid(at + key.size()).split(' ').first();
    return definition.contains("+lat_0=" + parallel + ' ') ? definition : definition + " +lat_2=" + parallel;
}

/// The projected system of a definition without a shift. PROJ itself would leave its name open, name its ellipsoid only
/// where it knows the axes, and draw a polar system's axes along 0 and 90 degrees whatever its central meridian.
ProjObject namedSystem(PJ_CONTEXT* context, const QByteArray& definition, const WktNames& names) {
    const ProjObject parsed = parsedSystem(context, withBothParallels(definition));
    const ProjObject ellipsoid(parsed ? proj_get_ellipsoid(context, parsed.get()) : nullptr);
    const ProjObject conversion(parsed ? proj_crs_get_coordoperation(context, parsed.get()) : nullptr);
    double a = 0.0;
    double inverseFlattening = 0.0;
    if (!ellipsoid || !conversion ||
        proj_ellipsoid_get_parameters(context, ellipsoid.get(), &a, nullptr, nullptr, &inverseFlattening) == 0)
        return nullptr;
    const ProjObject angles(proj_create_ellipsoidal_2D_cs(context, PJ_ELLPS2D_LONGITUDE_LATITUDE, nullptr, 0.0));
    const ProjObject axes(proj_create_cartesian_2D_cs(context, PJ_CART2D_EASTING_NORTHING, nullptr, 0.0));
    const ProjObject geographic(proj_create_geographic_crs(
        context, "unknown", names.datum.isEmpty() ? "unknown" : names.datum.constData(), names.ellipsoid.constData(), a,
        inverseFlattening, "Greenwich", 0.0, nullptr, 0.0, angles.get()));
    return ProjObject(
        proj_create_projected_crs(context, names.system.constData(), geographic.get(), conversion.get(), axes.get()));
}

QByteArray plainLetters(const QByteArray& text) {
    QByteArray letters;
    std::copy_if(text.begin(), text.end(), std::back_inserter(letters),
                 [](char c) { return std::isalnum(static_cast<unsigned char>(c)) && !(c & 0x80); });
    return letters;
}

/// Puts `name` in place of the quoted text after `keyword`.
void putName(QByteArray& wkt, const char* keyword, QByteArray name) {
    const int open = wkt.indexOf('"', wkt.indexOf(keyword));
    const int close = wkt.indexOf('"', open + 1);
    wkt.replace(open + 1, close - open - 1, name.replace('"', "\"\""));
}

/// In ESRI's dialect PROJ leaves the identifier out.
void putEsriIdentifier(QByteArray& wkt, const QByteArray& code) {
    const int next = wkt.indexOf('\n');
    const int indent = next < 0 ? 0 : int(wkt.mid(next + 1).indexOf(wkt.mid(next + 1).trimmed()));
    const QByteArray lineBreak = next < 0 ? QByteArray() : '\n' + QByteArray(indent, ' ');
    wkt.insert(wkt.lastIndexOf(']'), ',' + lineBreak + "AUTHORITY[\"EPSG\"," + code + ']');
}

/// The names to the letter: in its ESRI dialect PROJ turns all but plain letters into "_". Where it has ESRI's own name
/// of a datum, that stays.
void putEsriNames(QByteArray& wkt, const WktNames& names) {
    const QByteArray prefix = "D_";
    const QByteArray datum = names.datum.startsWith(prefix) ? names.datum : prefix + names.datum;
    const int open = wkt.indexOf("DATUM[\"") + 7;
    const bool isOwnName = plainLetters(wkt.mid(open, wkt.indexOf('"', open) - open)) == plainLetters(datum);
    if (!names.datum.isEmpty() && isOwnName)
        putName(wkt, "DATUM[", QByteArray(datum).replace(' ', '_'));
    putName(wkt, "PROJCS[", names.system);
}

} // namespace

std::unique_ptr<IProjectedSystem> Geodesy::createSystem(const QByteArray& definition) {
    const DefinitionParts parts = splitDefinition(definition);
    auto projection = definedProjection(context, parts.projection);
    const ProjItems items(definition);
    Ellipsoid ellipsoid;
    ProjTowgs84 shift;
    if (!projection || !ellipsoid.read(items) || !readDatumShift(items, &shift))
        return nullptr;
    const auto toWgs84 = items.has("towgs84")
                             ? std::optional<ShiftToWgs84>(ShiftToWgs84(shift, ellipsoid.a, ellipsoid.b))
                             : std::nullopt;
    return std::make_unique<ProjectedSystem>(std::move(projection), toWgs84, ellipsoid.a, ellipsoid.b);
}

QByteArray Geodesy::exportWkt(const QByteArray& definition, const WktNames& names, WktDialect dialect, bool indented) {
    static constexpr PJ_WKT_TYPE types[] = {PJ_WKT1_GDAL, PJ_WKT1_ESRI, PJ_WKT2_2019};
    const char* const options[] = {indented ? "MULTILINE=YES" : "MULTILINE=NO", nullptr};
    const DefinitionParts parts = splitDefinition(definition);
    ProjObject crs =
        names.code.isEmpty()
            ? namedSystem(context.get(), parts.projection, names)
            : ProjObject(proj_create_from_database(context.get(), "EPSG", names.code, PJ_CATEGORY_CRS, 0, nullptr));
    if (crs && !parts.shift.isEmpty())
        crs = boundToWgs84(context.get(), crs, parts.shift);
    if (!crs)
        return {};
    QByteArray wkt = proj_as_wkt(context.get(), crs.get(), types[static_cast<int>(dialect)], options);
    const bool isEsri = dialect == WktDialect::Wkt1Esri;
    if (wkt.isEmpty())
        return wkt;
    if (!names.code.isEmpty())
        putName(wkt, dialect == WktDialect::Wkt2_2019 ? "PROJCRS[" : "PROJCS[", names.system);
    if (!names.code.isEmpty() && isEsri)
        putEsriIdentifier(wkt, names.code);
    else if (isEsri)
        putEsriNames(wkt, names);
    return wkt;
}
