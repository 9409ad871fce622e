#include "platform/projection/engine/reading/DefinitionReader.h"

#include "platform/projection/engine/definition/Datum.h"
#include "platform/projection/engine/definition/DefinitionLibrary.h"
#include "platform/projection/engine/definition/NormalisedProjection.h"
#include "platform/projection/engine/definition/ProjItems.h"
#include "platform/projection/engine/proj/DatumName.h"
#include "platform/projection/engine/proj/ProjComplaints.h"
#include "platform/projection/engine/proj/ProjContext.h"
#include "platform/projection/engine/proj/ProjObject.h"
#include "platform/projection/engine/reading/PastedText.h"
#include "platform/projection/engine/wkt/WktReader.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QString>

#include <proj_experimental.h>

#include <algorithm>
#include <iterator>

namespace {

using Reason = Withheld::Reason;
using Content = WktSystem::Content;

constexpr int longestItems = 4000;
constexpr int deepest = 50; // a bound compound system has 12 levels

ReadDefinition withheld(Content content, Reason reason, const QByteArray& detail = {}, int position = -1) {
    ReadDefinition result;
    result.system.content = content;
    result.system.withheld = {reason, detail};
    result.position = position;
    return result;
}

template <std::size_t count> bool isOneOf(const QByteArray& text, const char* const (&others)[count]) {
    return std::any_of(std::begin(others), std::end(others), [&text](const char* other) { return text == other; });
}

/// A text of brackets that no parser should have to follow down.
bool isTooDeep(const QByteArray& text) {
    int depth = 0;
    int most = 0;
    for (const char c : text) {
        depth += c == '[' || c == '{' || c == '(';
        depth -= c == ']' || c == '}' || c == ')';
        most = std::max(most, depth);
    }
    return most > deepest;
}

/// Those of WKT that are a coordinate system. PROJ opens files that an operation's text names.
bool isSystem(const QByteArray& keyword) {
    static constexpr const char* keywords[] = {
        "PROJCS",      "PROJCRS",       "PROJECTEDCRS",   "GEOGCS",         "GEOGCRS",  "GEOGRAPHICCRS",
        "GEODCRS",     "GEODETICCRS",   "GEOCCS",         "VERT_CS",        "VERTCS",   "VERTCRS",
        "VERTICALCRS", "COMPD_CS",      "COMPOUNDCRS",    "BOUNDCRS",       "LOCAL_CS", "ENGCRS",
        "TIMECRS",     "PARAMETRICCRS", "ENGINEERINGCRS", "DERIVEDPROJCRS", "FITTED_CS"};
    return isOneOf(keyword, keywords);
}

ProjObject component(PJ_CONTEXT* context, const ProjObject& crs, ReadDefinition& result) {
    switch (proj_get_type(crs.get())) {
    case PJ_TYPE_COMPOUND_CRS:
        result.hasHeight = true;
        return ProjObject(proj_crs_get_sub_crs(context, crs.get(), 0));
    case PJ_TYPE_BOUND_CRS: {
        const ProjObject shift(proj_crs_get_coordoperation(context, crs.get()));
        double values[7];
        if (proj_coordoperation_get_towgs84_values(context, shift.get(), values, 7, 0) == 0)
            result.hasOtherShift = true;
        return ProjObject(proj_get_source_crs(context, crs.get()));
    }
    default:
        return nullptr;
    }
}

/// Notes what the system says beside its definition.
void describe(PJ_CONTEXT* context, ProjObject crs, ReadDefinition& result) {
    for (ProjObject inner = component(context, crs, result); inner; inner = component(context, crs, result))
        crs = std::move(inner);
    result.isWithdrawn = proj_is_deprecated(crs.get()) != 0;
    const ProjObject datum(proj_crs_get_datum_forced(context, crs.get()));
    if (datum)
        result.datum = DatumName::of(context, datum.get());
    const ProjObject axes(proj_crs_get_coordinate_system(context, crs.get()));
    const char* unit = nullptr;
    if (axes &&
        proj_cs_get_axis_info(context, axes.get(), 0, nullptr, nullptr, nullptr, nullptr, &unit, nullptr, nullptr) !=
            0 &&
        qstricmp(unit, "metre") != 0)
        result.unit = unit;
    result.hasHeight = result.hasHeight || (axes && proj_cs_get_axis_count(context, axes.get()) > 2);
}

/// Where PROJ's complaint about WKT points to: it repeats the line around the place, with "^" below. Without that,
/// where the text breaks off: at a quote that nothing closes, or at its end where brackets are missing.
int placeOf(const QByteArray& complaint, const QByteArray& text) {
    const QByteArrayList lines = complaint.split('\n');
    if (lines.size() >= 3 && lines.last().contains('^')) {
        const QByteArray& line = lines[lines.size() - 2];
        const int start = text.indexOf(line);
        return start < 0 ? -1 : start + std::min(lines.last().indexOf('^'), line.size());
    }
    if (text.count('"') % 2 != 0)
        return text.lastIndexOf('"');
    const int open = text.count('[') + text.count('(');
    const int closed = text.count(']') + text.count(')');
    return open > closed ? text.size() : -1;
}

/// Where a PROJ text has that item.
int placeOfItem(const QByteArray& key, const QByteArray& text) {
    const QRegularExpression item("(?:^|[\\s+])(" + QRegularExpression::escape(QString::fromUtf8(key)) +
                                  ")(?=[\\s=]|$)");
    const QString unicode = QString::fromUtf8(text);
    const QRegularExpressionMatch match = item.match(unicode);
    return match.hasMatch() ? unicode.left(match.capturedStart(1)).toUtf8().size() : -1;
}

/// The first item of the text that a complaint about it names.
int placeOfComplaint(const QByteArray& complaint, const ProjItems& items, const QByteArray& text) {
    for (const ProjItems::Item& item : items.all()) {
        const QRegularExpression word("\\b" + QRegularExpression::escape(QString::fromUtf8(item.key)) + "\\b");
        if (item.key != "proj" && word.match(QString::fromUtf8(complaint)).hasMatch())
            return placeOfItem(item.key, text);
    }
    return placeOfItem("proj", text);
}

/// What PROJ knows of a projection under that name; empty when it knows none.
QByteArray descriptionOf(const QByteArray& projName) {
    for (const PJ_OPERATIONS* operation = proj_list_operations(); operation->id; ++operation) {
        if (projName == operation->id)
            return projName + " (" + QByteArray(*operation->descr).split('\n').first().trimmed() + ')';
    }
    return {};
}

/// An item that a PROJ text may have: a misspelt one would count as missing, and what it says as 0.
bool isKnownItem(const QByteArray& key) {
    static constexpr const char* keys[] = {
        "proj",    "lat_0",   "lon_0",    "lat_1",      "lon_1",  "lat_2",   "lon_2",   "lat_ts", "lonc",
        "alpha",   "k",       "k_0",      "x_0",        "y_0",    "zone",    "south",   "gamma",  "no_uoff",
        "no_off",  "a",       "b",        "f",          "rf",     "es",      "e",       "R",      "R_A",
        "R_V",     "R_a",     "R_g",      "R_h",        "ellps",  "datum",   "pm",      "units",  "to_meter",
        "axis",    "towgs84", "nadgrids", "geoidgrids", "type",   "title",   "over",    "approx", "algo",
        "no_defs", "wktext",  "vunits",   "vto_meter",  "no_rot", "R_lat_a", "R_lat_g", "geoc",   "geoid_crs"};
    return isOneOf(key, keys);
}

bool isFile(const QByteArray& key) {
    static constexpr const char* keys[] = {"init", "grids", "file", "xyzgrids", "model", "catalog"};
    return isOneOf(key, keys);
}

/// PROJ's shift for the datum is one by grids, in part or in whole.
bool hasGridsOnly(const QByteArray& datum) {
    static constexpr const char* datums[] = {"NAD27", "potsdam"};
    return isOneOf(datum, datums);
}

} // namespace

ReadDefinition DefinitionReader::read(const QByteArray& text) {
    const PastedText pasted(text);
    const bool isItems = pasted.form == PastedText::Form::ProjItems;
    const int longest = isItems ? longestItems : PastedText::longest;
    ReadDefinition result;
    if (pasted.text.size() > longest || isTooDeep(pasted.text))
        return withheld(Content::Unreadable, Reason::TooLong, QByteArray::number(longest));
    switch (pasted.form) {
    case PastedText::Form::None:
        return withheld(Content::Unreadable, pasted.text.isEmpty() ? Reason::None : Reason::UnknownForm);
    case PastedText::Form::Identifier:
        result = readIdentifier(pasted.authority, pasted.code);
        result.hasHeight = result.hasHeight || pasted.hasSecondCode;
        break;
    case PastedText::Form::Wkt:
        result = readWkt(pasted);
        break;
    case PastedText::Form::Json:
        result = readJson(pasted.text);
        break;
    case PastedText::Form::ProjItems:
        result = readItems(pasted.text);
        break;
    }
    // Of the kinds of systems that GDAL does not know, none is projected.
    if (result.system.content == Content::Unreadable && result.system.withheld.reason == Reason::None)
        return withheld(Content::NotProjected, Reason::OtherKind);
    if (result.position >= 0)
        result.position += pasted.start;
    return result;
}

ReadDefinition DefinitionReader::readIdentifier(const QByteArray& authority, const QByteArray& code) {
    const ProjComplaints quiet(context);
    ProjObject crs(
        proj_create_from_database(context.get(), authority.constData(), code.constData(), PJ_CATEGORY_CRS, 0, nullptr));
    const QByteArray capitals = code.toUpper(); // IGN's
    if (!crs)
        crs.reset(proj_create_from_database(context.get(), authority.constData(), capitals.constData(), PJ_CATEGORY_CRS,
                                            0, nullptr));
    if (!crs)
        return withheld(Content::Unreadable, Reason::UnknownCode, authority + ':' + code);
    ReadDefinition result;
    result.system = wktReader.read(proj_as_wkt(context.get(), crs.get(), PJ_WKT2_2019, nullptr));
    result.identifier = authority + ':' + proj_get_id_code(crs.get(), 0);
    describe(context.get(), std::move(crs), result);
    return result;
}

ReadDefinition DefinitionReader::readWkt(const PastedText& pasted) {
    const int file = pasted.text.indexOf("init=");
    if (file >= 0)
        return withheld(Content::Unreadable, Reason::NamedFile, pasted.text.mid(file, 30), file);
    if (!isSystem(pasted.keyword))
        return withheld(Content::NotProjected, Reason::OtherKind);
    const ProjComplaints complaints(context);
    ReadDefinition result;
    result.system = wktReader.read(pasted.text);
    const bool isReadable = result.system.content != Content::Unreadable;
    const char* const strictly[] = {isReadable ? "STRICT=NO" : "STRICT=YES", nullptr};
    PROJ_STRING_LIST errors = nullptr;
    ProjObject crs(proj_create_from_wkt(context.get(), pasted.text.constData(), strictly, nullptr, &errors));
    if (!isReadable) {
        const QByteArray complaint = errors && *errors ? QByteArray(*errors) : complaints.first();
        result = withheld(Content::Unreadable, Reason::Syntax, complaint.split('\n').first(),
                          placeOf(complaint, pasted.text));
    } else if (crs) {
        describe(context.get(), std::move(crs), result);
    }
    proj_string_list_destroy(errors);
    return result;
}

ReadDefinition DefinitionReader::readJson(const QByteArray& text) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        return withheld(Content::Unreadable, Reason::Syntax, error.errorString().toUtf8(), error.offset);
    // PROJ opens files that an operation's text names.
    if (!document.object().value("type").toString().endsWith("CRS"))
        return withheld(Content::NotProjected, Reason::OtherKind);
    const int file = text.indexOf("init=");
    if (file >= 0)
        return withheld(Content::Unreadable, Reason::NamedFile, text.mid(file, 30), file);
    const ProjComplaints complaints(context);
    ProjObject crs(proj_create(context.get(), text.constData()));
    const char* const wkt = crs ? proj_as_wkt(context.get(), crs.get(), PJ_WKT2_2019, nullptr) : nullptr;
    if (!wkt)
        return withheld(Content::Unreadable, Reason::Syntax, complaints.first());
    ReadDefinition result;
    result.system = wktReader.read(wkt);
    describe(context.get(), std::move(crs), result);
    return result;
}

ReadDefinition DefinitionReader::readItems(const QByteArray& text) {
    const ProjItems items(text);
    const QByteArray init = items.text("init").toLower();
    const bool isCodeAlone = init.startsWith("epsg:") && !items.has("proj") && items.count("init") == 1 &&
                             std::all_of(items.all().begin(), items.all().end(), [](const ProjItems::Item& item) {
                                 static constexpr const char* silent[] = {"init", "no_defs", "type", "wktext", "title"};
                                 return isOneOf(item.key, silent);
                             });
    if (isCodeAlone)
        return readIdentifier("EPSG", init.mid(5));
    for (const ProjItems::Item& item : items.all()) {
        if (isFile(item.key))
            return withheld(Content::Unreadable, Reason::NamedFile, '+' + item.key + '=' + item.value,
                            placeOfItem(item.key, text));
    }
    const QByteArray proj = items.text("proj");
    static constexpr const char* geographic[] = {"longlat", "latlong", "latlon", "lonlat"};
    static constexpr const char* geocentric[] = {"geocent", "cart"};
    if (isOneOf(proj, geographic))
        return withheld(Content::NotProjected, Reason::Geographic);
    if (isOneOf(proj, geocentric))
        return withheld(Content::NotProjected, Reason::Geocentric);
    if (proj == "pipeline" || items.has("step"))
        return withheld(Content::NotProjected, Reason::OtherKind, {}, placeOfItem("proj", text));
    ReadDefinition result;
    result.system.content = Content::Projected;
    result.system.withheld = whyNot(items);
    const Reason reason = result.system.withheld.reason;
    if (reason == Reason::None) {
        result.system.definition = library.definition(library.initialize(text.constData())).text();
        const QByteArray datum = items.text("datum");
        const QByteArray donor = "+proj=longlat +datum=" + datum + " +type=crs";
        if (ProjObject crs{datum.isEmpty() ? nullptr : proj_create(context.get(), donor.constData())})
            describe(context.get(), std::move(crs), result);
        const QByteArray units = items.text("units");
        result.unit = items.has("to_meter") ? "to_meter=" + items.text("to_meter")
                      : units == "m"        ? QByteArray()
                                            : units;
        result.hasOtherShift = !items.has("towgs84") &&
                               ((items.has("nadgrids") && items.text("nadgrids") != "@null") || hasGridsOnly(datum));
        result.hasHeight = items.has("geoidgrids") || items.has("vunits") || items.has("vto_meter");
        return result;
    }
    const QByteArray detail = result.system.withheld.detail;
    result.position = reason == Reason::Axes               ? placeOfItem("axis", text)
                      : reason == Reason::GridAngle        ? placeOfItem("gamma", text)
                      : reason == Reason::UnknownParameter ? placeOfItem(detail, text)
                      : reason == Reason::Syntax           ? placeOfComplaint(detail, items, text)
                                                           : placeOfItem("proj", text);
    return result;
}

/// Why no record holds the definition.
Withheld DefinitionReader::whyNot(const ProjItems& items) {
    const QByteArray proj = items.text("proj");
    if (items.count("proj") != 1)
        return {items.has("proj") ? Reason::TwoValues : Reason::MissingParameter, "+proj"};
    const auto unknown = std::find_if(items.all().begin(), items.all().end(),
                                      [](const ProjItems::Item& item) { return !isKnownItem(item.key); });
    const QByteArray description = descriptionOf(proj);
    if (!isKnownProjection(proj) && !description.isEmpty())
        return {Reason::Method, description};
    if (unknown != items.all().end() && !description.isEmpty())
        return {Reason::UnknownParameter, unknown->key};
    const QByteArray axes = items.text("axis");
    if (!axes.isEmpty() && axes != "enu" && axes != "neu" && !description.isEmpty())
        return {Reason::Axes, axes};
    QByteArray text;
    for (const ProjItems::Item& item : items.all())
        text += '+' + item.key + (item.value.isEmpty() ? QByteArray() : '=' + item.value) + ' ';
    if (QByteArray(library.definition(library.initialize(text.constData())).text()).startsWith("+proj="))
        return {};
    const QByteArray complaint = complaintOf(items);
    if (!complaint.isEmpty())
        return {Reason::Syntax, complaint};
    if (items.has("gamma") && items.has("alpha") && items.angle("gamma", 0) != items.angle("alpha", 0))
        return {Reason::GridAngle, items.text("gamma") + ", " + items.text("alpha")};
    return {Reason::Disagreement, {}};
}

/// What PROJ says against them; empty when it accepts them. Grids are left out: it would open them.
QByteArray DefinitionReader::complaintOf(const ProjItems& items) {
    const ProjComplaints complaints(context);
    QByteArray text;
    for (const ProjItems::Item& item : items.all()) {
        if (item.key != "nadgrids" && item.key != "geoidgrids")
            text += '+' + item.key + (item.value.isEmpty() ? QByteArray() : '=' + item.value) + ' ';
    }
    const ProjObject operation(proj_create(context.get(), text.constData()));
    if (operation)
        return {};
    return complaints.first().isEmpty()
               ? QByteArray(proj_context_errno_string(context.get(), proj_context_errno(context.get())))
               : complaints.first();
}
