#include "platform/projection/engine/WktReader.h"

#include "platform/projection/ProjNumber.h"
#include "platform/projection/engine/FaithfulDefinition.h"
#include "platform/projection/engine/ProjContext.h"
#include "platform/projection/engine/ProjItems.h"
#include "platform/projection/engine/ProjObject.h"
#include "platform/projection/engine/ProjectedWkt.h"

#include <cpl_conv.h>
#include <cpl_error.h>
#include <ogr_spatialref.h>

#include <cctype>
#include <optional>

namespace {

/// GDAL's errors stay off the terminal while it lives.
class QuietGdal {
public:
    QuietGdal() { CPLPushErrorHandler(CPLQuietErrorHandler); }
    ~QuietGdal() { CPLPopErrorHandler(); }

    QuietGdal(const QuietGdal&) = delete;
    QuietGdal& operator=(const QuietGdal&) = delete;
};

/// While it lives, GDAL does not search the registry for a datum shift where a text has none.
class NoSearchForShift {
public:
    NoSearchForShift() { CPLSetThreadLocalConfigOption(option, "NO"); }
    ~NoSearchForShift() { CPLSetThreadLocalConfigOption(option, nullptr); }

    NoSearchForShift(const NoSearchForShift&) = delete;
    NoSearchForShift& operator=(const NoSearchForShift&) = delete;

private:
    static constexpr const char* option = "OSR_ADD_TOWGS84_ON_EXPORT_TO_PROJ4";
};

QByteArray exportedDefinition(const OGRSpatialReference& reference) {
    char* text = nullptr;
    reference.exportToProj4(&text);
    QByteArray definition(text);
    CPLFree(text);
    return definition;
}

/// GDAL's tree has no PROJCS where WKT 1 has no name for the method, as with Michigan's Lambert projection.
QByteArray systemName(OGRSpatialReference& reference) {
    if (const char* const name = reference.GetAttrValue("PROJCS", 0))
        return name;
    reference.StripVertical();
    return reference.GetName();
}

/// The ellipsoid and the shift of a system that has no definition.
QByteArray datumDefinition(const OGRSpatialReference& reference) {
    const double a = reference.GetSemiMajor();
    const double inverseFlattening = reference.GetInvFlattening();
    QByteArray text = "+a=" + projNumber(a);
    text += inverseFlattening == 0 ? " +b=" + projNumber(a) : " +rf=" + projNumber(inverseFlattening);
    double shift[7] = {};
    if (reference.GetTOWGS84(shift, 7) != OGRERR_NONE)
        return text;
    text += " +towgs84=" + projNumber(shift[0]);
    for (int i = 1; i < 7; ++i)
        text += ',' + projNumber(shift[i]);
    return text;
}

QByteArray lettersOf(const QByteArray& name) {
    QByteArray letters;
    for (const char c : name) {
        if (std::isalnum(static_cast<unsigned char>(c)))
            letters += c;
    }
    return letters;
}

QByteArray withoutProjection(QByteArray definition) {
    const int start = definition.indexOf("+proj=");
    if (start < 0)
        return definition;
    const int end = definition.indexOf(' ', start);
    return definition.remove(start, end < 0 ? definition.size() : end + 1 - start);
}

} // namespace

bool WktReader::isGeocentric(const QByteArray& authority, const QByteArray& code) {
    if (code.isEmpty())
        return false;
    const QByteArray key = authority + ':' + code;
    const auto known = geocentric.constFind(key);
    if (known != geocentric.constEnd())
        return *known;
    const ProjObject system(
        proj_create_from_database(context.get(), authority.constData(), code.constData(), PJ_CATEGORY_CRS, 0, nullptr));
    return *geocentric.insert(key, system && proj_get_type(system.get()) == PJ_TYPE_GEOCENTRIC_CRS);
}

/// WKT 1 leaves out that a grid's axes point west and south, as the old Austrian cadastre's do. Where a text without
/// axes bears such a registry entry's name, up to signs between its words, the entry's axes count.
bool WktReader::isTurnedCassini(const QByteArray& name) {
    if (!turnedCassiniRead) {
        readTurnedCassini();
        turnedCassiniRead = true;
    }
    return turnedCassini.contains(lettersOf(name));
}

/// Of the methods that a record holds, the registry has other axes for Cassini-Soldner only.
void WktReader::readTurnedCassini() {
    PROJ_CRS_LIST_PARAMETERS* const parameters = proj_get_crs_list_parameters_create();
    constexpr PJ_TYPE type = PJ_TYPE_PROJECTED_CRS;
    parameters->types = &type;
    parameters->typesCount = 1;
    int count = 0;
    PROJ_CRS_INFO** const systems = proj_get_crs_info_list_from_database(context.get(), "EPSG", parameters, &count);
    proj_get_crs_list_parameters_destroy(parameters);
    for (int i = 0; i < count; ++i) {
        if (qstrcmp(systems[i]->projection_method_name, "Cassini-Soldner") == 0 && hasTurnedAxes(systems[i]->code))
            turnedCassini.insert(lettersOf(systems[i]->name));
    }
    proj_crs_info_list_destroy(systems);
}

bool WktReader::hasTurnedAxes(const char* code) const {
    const ProjObject system(proj_create_from_database(context.get(), "EPSG", code, PJ_CATEGORY_CRS, 0, nullptr));
    const ProjObject axes(system ? proj_crs_get_coordinate_system(context.get(), system.get()) : nullptr);
    const char* direction = nullptr;
    if (!axes || !proj_cs_get_axis_info(context.get(), axes.get(), 0, nullptr, nullptr, &direction, nullptr, nullptr,
                                        nullptr, nullptr))
        return false;
    return qstricmp(direction, "east") != 0 && qstricmp(direction, "north") != 0;
}

WktSystem WktReader::read(const QByteArray& wkt) {
    const QuietGdal quiet;
    OGRSpatialReference reference(nullptr);
    const char* text = wkt.constData();
    if (reference.importFromWkt(&text) != OGRERR_NONE)
        return {};
    if (!reference.IsProjected())
        return {WktSystem::Content::NotProjected, {}, {}};
    const ProjectedWkt statement(wkt);
    std::optional<NoSearchForShift> noSearch;
    // Where a geographic system bears a geocentric one's identifier, the search follows a null pointer (PROJ 9.1).
    if (isGeocentric(statement.baseAuthority, statement.baseCode))
        noSearch.emplace();
    QByteArray definition = exportedDefinition(reference);
    if (definition.isEmpty())
        definition = datumDefinition(reference);
    const QByteArray name = systemName(reference);
    const ProjItems items(definition);
    // The registry's are on the meridian of Ferro; going through it takes half a second.
    const bool mayBeTurned = statement.axes.isEmpty() && items.text("proj") == "cass" && items.has("pm");
    const bool turned = mayBeTurned && isTurnedCassini(name);
    if (turned || !isFaithful(items, statement))
        definition = withoutProjection(definition);
    return {WktSystem::Content::Projected, name, definition};
}
