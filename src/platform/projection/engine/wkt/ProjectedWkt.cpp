#include "platform/projection/engine/wkt/ProjectedWkt.h"

#include "catalogue/Angle.h"
#include "platform/projection/engine/definition/ProjItems.h"
#include "platform/projection/engine/wkt/PlainName.h"
#include "platform/projection/engine/wkt/WktUnit.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <string_view>

namespace {

using Text = std::string_view;

bool equalsIgnoringCase(Text left, Text right) {
    return left.size() == right.size() && qstrnicmp(left.data(), right.data(), uint(left.size())) == 0;
}

bool isOneOf(Text keyword, std::initializer_list<Text> keywords) {
    return std::any_of(keywords.begin(), keywords.end(),
                       [=](Text other) { return equalsIgnoringCase(keyword, other); });
}

bool isBlank(char c) {
    return static_cast<unsigned char>(c) <= ' ';
}

double toNumber(Text text) {
    return ProjItems::toNumber(QByteArray::fromRawData(text.data(), int(text.size())));
}

QByteArray toBytes(Text text) {
    return QByteArray(text.data(), int(text.size()));
}

bool isProjectedSystem(Text keyword) {
    return isOneOf(keyword, {"PROJCS", "PROJCRS", "PROJECTEDCRS"});
}

bool isBaseSystem(Text keyword) {
    return isOneOf(keyword, {"GEOGCS", "BASEGEOGCRS", "BASEGEODCRS"});
}

/// Walks through the nodes of a text and notes what the projected system's say.
class Scanner {
public:
    Scanner(Text wkt, ProjectedWkt& statement) : wkt(wkt), statement(statement) {}

    void scan();

private:
    struct Node {
        Text keyword;
        int index;        ///< of the value that comes next
        bool isProjected; ///< the projected system's node or below
    };

    Text quoted();
    Text bare();
    void open(Text keyword);
    void close();
    void value(Text text);

    void note(Text keyword, Text parent, int index, Text text);
    void noteParameter(int index, Text text);
    void noteEllipsoid(int index, Text text);
    void noteMeridian(int index, Text text);
    void noteUnit(Text keyword, Text parent, int index, Text text);
    void noteShiftUnit(Text keyword, int index, Text text);
    void noteAxis(Text parent, int index, Text text);
    void noteIdentifier(Text parent, int index, Text text);
    void require(bool condition, Withheld::Reason reason, const QByteArray& detail) {
        if (!condition && statement.doubt.reason == Withheld::Reason::None)
            statement.doubt = {reason, detail};
    }
    void requireOnce(bool condition, Text keyword) { require(condition, Withheld::Reason::Twice, toBytes(keyword)); }

    Text wkt;
    ProjectedWkt& statement;
    QVector<Node> path;
    std::size_t position = 0;
    std::size_t systemStart = 0; ///< of the projected system's node
    Text unitName;               ///< of the unit that is being read
    Text authority;              ///< of the identifier that is being read
    int ellipsoids = 0;
    int meridians = 0;
};

void Scanner::scan() {
    while (position < wkt.size()) {
        const char c = wkt[position];
        if (c == '"') {
            value(quoted());
        } else if (c == ']' || c == ')') {
            close();
        } else if (c == ',' || isBlank(c)) {
            if (c == ',' && !path.isEmpty())
                ++path.last().index;
            ++position;
        } else {
            const Text text = bare();
            while (position < wkt.size() && isBlank(wkt[position]))
                ++position;
            if (position < wkt.size() && (wkt[position] == '[' || wkt[position] == '('))
                open(text);
            else
                value(text);
        }
    }
}

Text Scanner::quoted() {
    const std::size_t start = position + 1;
    const std::size_t end = std::min(wkt.find('"', start), wkt.size());
    position = std::min(end + 1, wkt.size());
    return wkt.substr(start, end - start);
}

/// A keyword, a number or a direction; empty before a bracket.
Text Scanner::bare() {
    const std::size_t start = position;
    position = std::min(wkt.find_first_of("\"[](), \t\r\n", position), wkt.size());
    return wkt.substr(start, position - start);
}

void Scanner::open(Text keyword) {
    const bool isBelow = !path.isEmpty() && path.last().isProjected;
    const bool isSystem = isProjectedSystem(keyword);
    if (isSystem) {
        requireOnce(statement.node.isEmpty() && !isBelow, keyword);
        systemStart = std::size_t(keyword.data() - wkt.data());
        statement.isWkt1 = equalsIgnoringCase(keyword, "PROJCS");
    }
    path.append({keyword, 0, isBelow || isSystem});
    ++position;
}

void Scanner::close() {
    if (!path.isEmpty()) {
        if (isProjectedSystem(path.last().keyword))
            statement.node = toBytes(wkt.substr(systemStart, position + 1 - systemStart));
        path.removeLast();
    }
    // GDAL reads one system and leaves what follows.
    position = path.isEmpty() ? wkt.size() : position + 1;
}

void Scanner::value(Text text) {
    if (path.isEmpty())
        return;
    if (!path.last().isProjected)
        return noteShiftUnit(path.last().keyword, path.last().index, text);
    note(path.last().keyword, path.size() > 1 ? path[path.size() - 2].keyword : Text(), path.last().index, text);
}

void Scanner::note(Text keyword, Text parent, int index, Text text) {
    if (isOneOf(keyword, {"PARAMETER"}))
        noteParameter(index, text);
    else if (isOneOf(keyword, {"UNIT", "LENGTHUNIT", "ANGLEUNIT", "SCALEUNIT"}))
        noteUnit(keyword, parent, index, text);
    else if (isOneOf(keyword, {"AXIS"}))
        noteAxis(parent, index, text);
    else if (isOneOf(keyword, {"AUTHORITY", "ID"}))
        noteIdentifier(parent, index, text);
    else if (isOneOf(keyword, {"SPHEROID", "ELLIPSOID"}))
        noteEllipsoid(index, text);
    else if (isOneOf(keyword, {"PRIMEM", "PRIMEMERIDIAN"}))
        noteMeridian(index, text);
    else if (index == 0 && isProjectedSystem(keyword))
        statement.name = toBytes(text);
    else if (index == 0 && isOneOf(keyword, {"EXTENSION"}))
        statement.hasExtension = true;
    else if (index == 0 && isOneOf(keyword, {"MERIDIAN"}))
        statement.axisMeridians.append(toNumber(text));
    else if (index == 0 && isOneOf(keyword, {"DATUM"}))
        statement.isEsri = text.substr(0, 2) == "D_";
    else if (index == 0 && isOneOf(keyword, {"PROJECTION", "METHOD"})) {
        requireOnce(statement.method.isEmpty(), keyword);
        statement.methodText = toBytes(text);
        statement.method = plainName(statement.methodText);
    }
}

void Scanner::noteParameter(int index, Text text) {
    if (index > 1 && !statement.parameters.isEmpty())
        require(false, Withheld::Reason::Twice, statement.parameters.last().text);
    if (index == 0) {
        statement.parameters.append(ProjectedWkt::Parameter());
        statement.parameters.last().text = toBytes(text);
        statement.parameters.last().name = plainName(toBytes(text));
    } else if (index == 1 && !statement.parameters.isEmpty()) {
        statement.parameters.last().value = toNumber(text);
    }
}

void Scanner::noteEllipsoid(int index, Text text) {
    requireOnce(index <= 2, "SPHEROID");
    if (index == 0)
        requireOnce(ellipsoids++ == 0, "SPHEROID");
    else if (index == 1)
        statement.semiMajorAxis = toNumber(text);
    else if (index == 2)
        statement.inverseFlattening = toNumber(text);
}

void Scanner::noteMeridian(int index, Text text) {
    requireOnce(index <= 1, "PRIMEM");
    if (index == 0) {
        requireOnce(meridians++ == 0, "PRIMEM");
        statement.meridianName = plainName(toBytes(text));
    } else if (index == 1) {
        statement.primeMeridian = toNumber(text);
    }
}

void Scanner::noteUnit(Text keyword, Text parent, int index, Text text) {
    require(index <= 1, Withheld::Reason::Unit, toBytes(unitName));
    if (index == 0)
        unitName = text;
    if (index != 1)
        return;
    const WktUnit unit = WktUnit::read(unitName, text);
    const double factor = unit.factor;
    require(factor > 0, Withheld::Reason::Unit, toBytes(unitName));
    statement.hasRoundedUnit = statement.hasRoundedUnit || unit.isRounded;
    if (isOneOf(parent, {"PARAMETER"}) && !statement.parameters.isEmpty()) {
        using Quantity = ProjectedWkt::Parameter::Quantity;
        ProjectedWkt::Parameter& parameter = statement.parameters.last();
        parameter.unit = factor;
        parameter.unitOf = isOneOf(keyword, {"LENGTHUNIT"})  ? Quantity::Length
                           : isOneOf(keyword, {"ANGLEUNIT"}) ? Quantity::Angle
                           : isOneOf(keyword, {"SCALEUNIT"}) ? Quantity::Scale
                                                             : Quantity::Any;
    } else if (isOneOf(parent, {"SPHEROID", "ELLIPSOID"})) {
        statement.semiMajorAxis *= factor;
    } else if (isOneOf(parent, {"PRIMEM", "PRIMEMERIDIAN"})) {
        statement.meridianUnit = factor;
    } else if (isBaseSystem(parent)) {
        statement.angularUnit = factor;
    } else if (isProjectedSystem(parent) ||
               (isOneOf(parent, {"AXIS"}) && !statement.axes.isEmpty() && statement.axes.last() != "up")) {
        statement.gridUnits.append(factor);
    }
}

/// Of a parameter of the shift around the projected system.
void Scanner::noteShiftUnit(Text keyword, int index, Text text) {
    const bool isParameter = path.size() > 1 && isOneOf(path[path.size() - 2].keyword, {"PARAMETER"});
    const bool isAngle = isOneOf(keyword, {"ANGLEUNIT"});
    if (index != 1 || !isParameter || !(isAngle || isOneOf(keyword, {"UNIT", "LENGTHUNIT", "SCALEUNIT"})))
        return;
    const double expected = isAngle ? Angle::toRadians(1.0 / 3600) : 1;
    if (!(std::abs(toNumber(text) / expected - 1) < 1e-9))
        statement.hasShiftInOtherUnits = true;
}

void Scanner::noteAxis(Text parent, int index, Text text) {
    if (index == 1 && isProjectedSystem(parent))
        statement.axes.append(toBytes(text).toLower());
}

void Scanner::noteIdentifier(Text parent, int index, Text text) {
    if (index == 0)
        authority = text;
    if (index <= 1 && isBaseSystem(parent))
        (index == 0 ? statement.baseAuthority : statement.baseCode) = toBytes(text);
    if (index != 1 || !equalsIgnoringCase(authority, "EPSG"))
        return;
    if (isOneOf(parent, {"METHOD", "PROJECTION"}))
        statement.methodCode = toBytes(text).toInt();
    else if (isOneOf(parent, {"PARAMETER"}) && !statement.parameters.isEmpty())
        statement.parameters.last().code = toBytes(text).toInt();
}

} // namespace

ProjectedWkt::ProjectedWkt(const QByteArray& wkt) {
    Scanner(Text(wkt.constData(), std::size_t(wkt.size())), *this).scan();
}
