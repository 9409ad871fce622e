#include "platform/projection/engine/wkt/ProjectedWkt.h"

#include "platform/projection/engine/definition/ProjItems.h"

#include <algorithm>
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

QByteArray toLower(Text text) {
    return QByteArray(text.data(), int(text.size())).toLower();
}

/// Walks through the nodes of a text and notes what the projected system's say.
class Scanner {
public:
    Scanner(Text wkt, ProjectedWkt& statement) : wkt(wkt), statement(statement) {}

    void scan();

private:
    struct Node {
        Text keyword;
        int index;      ///< of the value that comes next
        bool projected; ///< in the projected system's node or below
    };

    Text quoted();
    Text bare();
    void open(Text keyword);
    void close();
    void value(Text text);

    void note(Text keyword, Text parent, int index, Text text);
    void noteUnit(Text parent, double factor);
    void noteParameter(int index, Text text);

    Text wkt;
    ProjectedWkt& statement;
    QVector<Node> path;
    std::size_t position = 0;
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
    const bool below = !path.isEmpty() && path.last().projected;
    path.append({keyword, 0, below || isOneOf(keyword, {"PROJCS", "PROJCRS", "PROJECTEDCRS"})});
    ++position;
}

void Scanner::close() {
    if (!path.isEmpty())
        path.removeLast();
    // GDAL reads one system and leaves what follows.
    position = path.isEmpty() ? wkt.size() : position + 1;
}

void Scanner::value(Text text) {
    if (path.isEmpty() || !path.last().projected)
        return;
    note(path.last().keyword, path.size() > 1 ? path[path.size() - 2].keyword : Text(), path.last().index, text);
}

void Scanner::note(Text keyword, Text parent, int index, Text text) {
    if (isOneOf(keyword, {"PARAMETER"}))
        noteParameter(index, text);
    else if (index == 0 && isOneOf(keyword, {"PROJCS", "PROJCRS", "PROJECTEDCRS"}))
        statement.name += QByteArray(text.data(), int(text.size()));
    else if (index == 1 && isOneOf(keyword, {"UNIT", "LENGTHUNIT", "ANGLEUNIT", "SCALEUNIT"}))
        noteUnit(parent, toNumber(text));
    else if (index == 0 && isOneOf(keyword, {"PROJECTION", "METHOD"}))
        statement.method = toLower(text);
    else if (index == 1 && isOneOf(keyword, {"SPHEROID", "ELLIPSOID"}))
        statement.semiMajorAxis = toNumber(text);
    else if (index == 2 && isOneOf(keyword, {"SPHEROID", "ELLIPSOID"}))
        statement.inverseFlattening = toNumber(text);
    else if (index == 1 && isOneOf(keyword, {"PRIMEM", "PRIMEMERIDIAN"}))
        statement.primeMeridian = toNumber(text);
    else if (index == 1 && isOneOf(keyword, {"AXIS"}) && isOneOf(parent, {"PROJCS", "PROJCRS", "PROJECTEDCRS"}))
        statement.axes.append(toLower(text));
    else if (index <= 1 && isOneOf(keyword, {"AUTHORITY", "ID"}) &&
             isOneOf(parent, {"GEOGCS", "BASEGEOGCRS", "BASEGEODCRS"}))
        (index == 0 ? statement.baseAuthority : statement.baseCode) = QByteArray(text.data(), int(text.size()));
    else if (index == 0 && isOneOf(keyword, {"MERIDIAN"}))
        statement.axisMeridians.append(toNumber(text));
}

void Scanner::noteUnit(Text parent, double factor) {
    if (isOneOf(parent, {"SPHEROID", "ELLIPSOID"}))
        statement.semiMajorAxis *= factor;
    if (!statement.units.contains(factor))
        statement.units.append(factor);
}

void Scanner::noteParameter(int index, Text text) {
    if (index == 0)
        statement.parameters.append({toLower(text), 0});
    else if (index == 1 && !statement.parameters.isEmpty())
        statement.parameters.last().value = toNumber(text);
}

} // namespace

ProjectedWkt::ProjectedWkt(const QByteArray& wkt) {
    Scanner(Text(wkt.constData(), std::size_t(wkt.size())), *this).scan();
}
