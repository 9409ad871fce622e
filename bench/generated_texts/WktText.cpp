#include "WktText.h"

namespace {

QByteArray quoted(const QByteArray& text) {
    return '"' + text + '"';
}

QByteArray unitNode(const char* keyword, const Unit& unit) {
    return unit.name.isEmpty() ? QByteArray() : QByteArray(keyword) + '[' + quoted(unit.name) + ',' + unit.factor + ']';
}

QByteArray node(const char* keyword, const QByteArrayList& parts) {
    QByteArray inside;
    for (const QByteArray& part : parts) {
        if (!part.isEmpty())
            inside += (inside.isEmpty() ? "" : ",") + part;
    }
    return inside.isEmpty() ? inside : QByteArray(keyword) + '[' + inside + ']';
}

QByteArray identifier(int code) {
    return code == 0 ? QByteArray() : "ID[\"EPSG\"," + QByteArray::number(code) + ']';
}

const char* unitKeyword(WktText::Kind kind) {
    return kind == WktText::Kind::Angle ? "ANGLEUNIT" : kind == WktText::Kind::Length ? "LENGTHUNIT" : "SCALEUNIT";
}

QByteArray primeMeridian(const WktText& text) {
    if (text.meridian.isEmpty())
        return {};
    return node("PRIMEM", {quoted(text.meridianName), text.meridian,
                           text.isWkt2() ? unitNode("ANGLEUNIT", text.meridianUnit) : QByteArray()});
}

QByteArray writeWkt1(const WktText& text) {
    // The names tell readers the dialect.
    const bool isEsri = text.dialect == Dialect::Esri;
    const QByteArray datum =
        node("DATUM", {quoted(isEsri ? "D_Local" : "Local"),
                       node("SPHEROID", {quoted(text.spheroid), text.semiMajorAxis, text.inverseFlattening}),
                       node("TOWGS84", {text.toWgs84})});
    QByteArrayList parts = {quoted(text.system),
                            node("GEOGCS", {quoted(isEsri ? "GCS_Local" : "Local"), datum, primeMeridian(text),
                                            unitNode("UNIT", text.angleUnit)}),
                            node("PROJECTION", {quoted(text.method)})};
    for (const WktText::Parameter& parameter : text.parameters)
        parts += node("PARAMETER", {quoted(parameter.name), parameter.number});
    parts += unitNode("UNIT", text.lengthUnit);
    for (const WktText::Axis& axis : text.axes)
        parts += node("AXIS", {quoted(axis.name), axis.direction.toUpper()});
    return node("PROJCS", parts += text.beside);
}

QByteArray writeWkt2(const WktText& text) {
    const QByteArray datum = node(
        "DATUM", {quoted("Local"), node("ELLIPSOID", {quoted(text.spheroid), text.semiMajorAxis, text.inverseFlattening,
                                                      unitNode("LENGTHUNIT", text.axisUnit)})});
    QByteArrayList conversion = {quoted("Local"), node("METHOD", {quoted(text.method), identifier(text.methodCode)})};
    for (const WktText::Parameter& parameter : text.parameters)
        conversion +=
            node("PARAMETER", {quoted(parameter.name), parameter.number,
                               unitNode(unitKeyword(parameter.kind), parameter.unit), identifier(parameter.code)});
    const char* const base = text.dialect == Dialect::Wkt2_2015 ? "BASEGEODCRS" : "BASEGEOGCRS";
    QByteArrayList parts = {
        quoted(text.system),
        node(base, {quoted("Local"), datum, primeMeridian(text), unitNode("ANGLEUNIT", text.angleUnit)}),
        node("CONVERSION", conversion), "CS[Cartesian,2]"};
    for (int i = 0; i < text.axes.size(); ++i) {
        const WktText::Axis& axis = text.axes[i];
        const QByteArray meridian = axis.meridian.isEmpty()
                                        ? QByteArray()
                                        : "MERIDIAN[" + axis.meridian + ",ANGLEUNIT[\"degree\",0.0174532925199433]]";
        parts += node("AXIS", {quoted(axis.name), axis.direction, meridian, "ORDER[" + QByteArray::number(i + 1) + ']',
                               unitNode("LENGTHUNIT", axis.unit)});
    }
    return node("PROJCRS", parts += text.beside);
}

} // namespace

QByteArray WktText::write() const {
    const QByteArray text = before + (isWkt2() ? writeWkt2(*this) : writeWkt1(*this)) + after;
    return hasRoundBrackets ? QByteArray(text).replace('[', '(').replace(']', ')') : text;
}

QByteArray Meaning::definition() const {
    const auto exact = [](double number) { return QByteArray::number(number, 'g', 17); };
    QByteArray text = "+proj=" + projection;
    for (auto value = values.begin(); value != values.end(); ++value) {
        text.replace('{' + value.key() + '}', exact(value.value()));
        text += " +" + value.key() + '=' + exact(value.value());
    }
    const bool isSphere = inverseFlattening == 0;
    return text + " +a=" + exact(semiMajorAxis) +
           (isSphere ? " +b=" + exact(semiMajorAxis) : " +rf=" + exact(inverseFlattening));
}
