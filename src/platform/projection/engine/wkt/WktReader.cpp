#include "platform/projection/engine/wkt/WktReader.h"

#include "platform/projection/ProjNumber.h"
#include "platform/projection/engine/definition/ProjItems.h"
#include "platform/projection/engine/proj/ProjContext.h"
#include "platform/projection/engine/proj/ProjObject.h"
#include "platform/projection/engine/wkt/FaithfulDefinition.h"
#include "platform/projection/engine/wkt/PlainName.h"
#include "platform/projection/engine/wkt/ProjectedWkt.h"

#include <cpl_conv.h>
#include <cpl_error.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <iterator>
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

/// That of the projected system alone, where it is bound by a shift that PROJ.4 can't say (Molodensky-Badekas). No
/// other shift takes its place.
QByteArray definitionWithoutShift(const ProjectedWkt& statement) {
    const NoSearchForShift noSearch;
    OGRSpatialReference reference(nullptr);
    const char* text = statement.node.constData();
    return reference.importFromWkt(&text) == OGRERR_NONE ? exportedDefinition(reference) : QByteArray();
}

/// What GetAttrValue("PROJCS", 0) gives, without the tree of nodes that GDAL builds for the answer: it costs as much as
/// all else that an import adds, and has no PROJCS where WKT 1 has no name for the method (Michigan's Lambert
/// projection).
QByteArray systemName(OGRSpatialReference& reference, const ProjectedWkt& statement) {
    if (reference.IsCompound())
        reference.StripVertical();
    // The mark of a withdrawn system is off the name and on the node.
    constexpr const char* mark = " (deprecated)";
    return QByteArray(reference.GetName()) + (statement.name.endsWith(mark) ? mark : "");
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

Withheld::Reason kindOf(const OGRSpatialReference& reference) {
    using Reason = Withheld::Reason;
    return reference.IsGeographic() || reference.IsDerivedGeographic() ? Reason::Geographic
           : reference.IsGeocentric()                                  ? Reason::Geocentric
           : reference.IsVertical()                                    ? Reason::Vertical
           : reference.IsLocal()                                       ? Reason::Local
                                                                       : Reason::OtherKind;
}

} // namespace

bool WktReader::isGeocentric(const QByteArray& authority, const QByteArray& code) {
    if (authority.isEmpty())
        return false;
    auto known = geocentricCodes.find(authority);
    if (known == geocentricCodes.end()) {
        known = geocentricCodes.insert(authority, {});
        const auto codes =
            proj_get_codes_from_database(context.get(), authority.constData(), PJ_TYPE_GEOCENTRIC_CRS, 1);
        for (auto geocentric = codes; geocentric && *geocentric; ++geocentric)
            known->insert(*geocentric);
        proj_string_list_destroy(codes);
    }
    return known->contains(code);
}

/// WKT 1 leaves out that the axes of the old Austrian cadastre's grids point south and west (EPSG 8044 and 8045, the
/// only ones of a method that a record holds). A text without axes that bears one's name, up to signs between the
/// words, is it.
bool WktReader::isTurnedCassini(const QByteArray& name) const {
    const QByteArray plain = plainName(name);
    constexpr const char* codes[] = {"8044", "8045"};
    return std::any_of(std::begin(codes), std::end(codes), [&](const char* code) {
        const ProjObject system(proj_create_from_database(context.get(), "EPSG", code, PJ_CATEGORY_CRS, 0, nullptr));
        return system && plainName(proj_get_name(system.get())) == plain;
    });
}

WktSystem WktReader::read(const QByteArray& wkt) {
    const QuietGdal quiet;
    OGRSpatialReference reference(nullptr);
    const char* text = wkt.constData();
    if (reference.importFromWkt(&text) != OGRERR_NONE)
        return {};
    if (!reference.IsProjected())
        return {WktSystem::Content::NotProjected, {}, {}, {kindOf(reference), {}}};
    ProjectedWkt statement(wkt);
    std::optional<NoSearchForShift> noSearch;
    // Where a geographic system bears a geocentric one's identifier, the search follows a null pointer (PROJ 9.1).
    if (isGeocentric(statement.baseAuthority, statement.baseCode))
        noSearch.emplace();
    QByteArray definition = exportedDefinition(reference);
    if (definition.isEmpty() || statement.hasShiftInOtherUnits)
        definition = definitionWithoutShift(statement);
    if (definition.isEmpty())
        definition = datumDefinition(reference);
    const QByteArray name = systemName(reference, statement);
    if (statement.axes.isEmpty() && ProjItems(definition).text("proj") == "cass" && isTurnedCassini(name))
        statement.axes = {"south", "west"};
    const FaithfulDefinition faithful = faithfulDefinition(definition, statement);
    return {WktSystem::Content::Projected, name, faithful.text, faithful.withheld};
}
