#include "Variation.h"

#include <cmath>

namespace {

using Result = std::optional<Expectation>;
using Kind = WktText::Kind;
using Parameter = WktText::Parameter;
using TextGenerator::number;

/// One of the parameters for which the condition holds, or null.
template <typename Condition> Parameter* anyOf(WktText& text, Random& random, Condition condition) {
    QVector<Parameter*> found;
    for (Parameter& parameter : text.parameters) {
        if (!parameter.key.isEmpty() && condition(parameter))
            found.append(&parameter);
    }
    return found.isEmpty() ? nullptr : random.pick(found);
}

Parameter* anyOf(WktText& text, Random& random) {
    return anyOf(text, random, [](const Parameter&) { return true; });
}

Parameter* anyOf(WktText& text, Random& random, Kind kind) {
    return anyOf(text, random, [kind](const Parameter& parameter) { return parameter.kind == kind; });
}

bool isSaidTwice(const WktText& text, const Parameter& parameter) {
    int count = 0;
    for (const Parameter& other : text.parameters)
        count += other.key == parameter.key ? 1 : 0;
    return count > 1;
}

bool insertThousandsComma(QByteArray& text) {
    const int point = text.indexOf('.') < 0 ? text.size() : text.indexOf('.');
    if (text.contains('e') || point - (text.startsWith('-') ? 1 : 0) < 4)
        return false;
    text.insert(point - 3, ',');
    return true;
}

bool insertDecimalComma(QByteArray& text) {
    const bool has = text.contains('.');
    text.replace('.', ',');
    return has;
}

template <typename Change>
Result changeNumber(GeneratedText& generated, Random& random, Expectation expectation, Change change) {
    Parameter* const parameter = anyOf(generated.text, random);
    return change(parameter->number) ? Result(expectation) : std::nullopt;
}

Result setNumber(Parameter* parameter, const QByteArray& text) {
    if (!parameter)
        return std::nullopt;
    parameter->number = text;
    return Expectation::Doubtful;
}

QByteArray misspelt(QByteArray name, Random& random) {
    const int at = 1 + random.below(name.size() - 2);
    switch (random.below(3)) {
    case 0:
        return name.remove(at, 1);
    case 1:
        return name.insert(at, name[at]);
    default:
        name[at] = name[at] == 'x' ? 'y' : 'x';
        return name;
    }
}

void addToLongitudes(Meaning& meaning, double degrees) {
    for (auto value = meaning.values.begin(); value != meaning.values.end(); ++value) {
        if (value.key().startsWith("lon"))
            value.value() += degrees;
    }
}

/// What the text's meridian adds to its longitudes.
double meridianOf(const WktText& text) {
    for (const TextGenerator::KnownMeridian& meridian : TextGenerator::meridians()) {
        if (text.meridianName == meridian.name)
            return QByteArray(meridian.degrees).toDouble();
    }
    return 0;
}

double degreesPerUnit(const WktText& text) {
    for (const TextGenerator::KnownUnit& unit : TextGenerator::angleUnits()) {
        if (text.angleUnit.name == unit.gdal || text.angleUnit.name == unit.esri)
            return unit.size;
    }
    return 0;
}

/// Every unit of the kind in the text.
template <typename Change> void changeUnits(WktText& text, Kind kind, Change change) {
    change(kind == Kind::Angle ? text.angleUnit : text.lengthUnit);
    for (Parameter& parameter : text.parameters) {
        if (parameter.kind == kind)
            change(parameter.unit);
    }
    for (WktText::Axis& axis : text.axes) {
        if (kind == Kind::Length)
            change(axis.unit);
    }
}

Kind angleOrLength(Random& random) {
    return random.oneIn(2) ? Kind::Angle : Kind::Length;
}

Result setFactors(GeneratedText& generated, Random& random, const QByteArray& factor) {
    changeUnits(generated.text, angleOrLength(random), [&](Unit& unit) { unit.factor = factor; });
    return Expectation::Doubtful;
}

Result addParameter(WktText& text, const char* name, const QByteArray& value, Expectation expectation) {
    if (text.isWkt2())
        return std::nullopt;
    text.parameters.append({name, 0, Kind::Length, {}, value, {}});
    return expectation;
}

QByteArray semiMinorAxis(const WktText& text) {
    return number(text.semiMajorAxis.toDouble() * (1 - 1 / text.inverseFlattening.toDouble()));
}

/// Along the central line of the azimuth 90, in EPSG guidance note 7-2 on method 9812: u_c = (A / B) pi / 2, with
/// A / B = a k sqrt(1 - e^2) / (1 - e^2 sin^2(phi)).
double distanceToNaturalOrigin(const Meaning& meaning) {
    const double flattening = 1 / meaning.inverseFlattening;
    const double e2 = flattening * (2 - flattening);
    const double quarter = std::acos(-1.0) / 2;
    const double phi = meaning.values["lat_0"] * quarter / 90;
    return std::copysign(meaning.semiMajorAxis * meaning.values["k_0"] * std::sqrt(1 - e2) /
                             (1 - e2 * std::pow(std::sin(phi), 2)) * quarter,
                         phi);
}

constexpr Expectation says = Expectation::Says;
constexpr Expectation open = Expectation::Open;
constexpr Expectation doubtful = Expectation::Doubtful;

} // namespace

const QVector<Variation>& Variation::all() {
    static const QVector<Variation> table = {
        {"as written", [](GeneratedText&, Random&) { return Result(says); }},
        {"parameters in another order",
         [](GeneratedText& generated, Random&) {
             std::reverse(generated.text.parameters.begin(), generated.text.parameters.end());
             return Result(says);
         }},
        {"names in capitals",
         [](GeneratedText& generated, Random&) {
             for (Parameter& parameter : generated.text.parameters)
                 parameter.name = parameter.name.toUpper();
             return Result(says);
         }},
        {"round brackets",
         [](GeneratedText& generated, Random&) {
             generated.text.hasRoundBrackets = true;
             return Result(says);
         }},
        {"a name with brackets, quotes and keywords",
         [](GeneratedText& generated, Random&) {
             generated.text.system = R"(Zone [3], ""West"" PARAMETER[""false_easting"",7],UNIT[""foot"",0.3048])";
             return Result(says);
         }},
        {"a compound system with heights in feet",
         [](GeneratedText& generated, Random&) {
             WktText& text = generated.text;
             text.before = text.isWkt2() ? "COMPOUNDCRS[\"Both\"," : "COMPD_CS[\"Both\",";
             text.after = text.isWkt2() ? R"(,VERTCRS["Heights",VDATUM["Local"],CS[vertical,1],AXIS["up",up],)"
                                          R"(LENGTHUNIT["foot",0.3048]]])"
                                        : R"(,VERT_CS["Heights",VERT_DATUM["Local",2005],UNIT["foot",0.3048]]])";
             return Result(says);
         }},
        {"parallels in the other order",
         [](GeneratedText& generated, Random&) {
             Parameter* parallels[] = {nullptr, nullptr};
             for (Parameter& parameter : generated.text.parameters) {
                 if (parameter.key == "lat_1" || parameter.key == "lat_2")
                     parallels[parameter.key == "lat_1" ? 0 : 1] = &parameter;
             }
             if (!parallels[0] || !parallels[1])
                 return Result();
             std::swap(parallels[0]->number, parallels[1]->number);
             return Result(says);
         }},
        {"another system's identifier",
         [](GeneratedText& generated, Random&) {
             generated.text.beside = generated.text.isWkt2() ? "ID[\"EPSG\",32632]" : R"(AUTHORITY["EPSG","32632"])";
             return Result(open);
         }},
        {"a second unit of length",
         [](GeneratedText& generated, Random&) {
             const bool isMetre = generated.text.lengthUnit.factor == "1";
             generated.text.beside = isMetre ? R"(UNIT["foot",0.3048])" : R"(UNIT["metre",1])";
             return Result(doubtful);
         }},
        {"a second method",
         [](GeneratedText& generated, Random&) {
             generated.text.beside = R"(PROJECTION["Transverse_Mercator"])";
             const bool isSame = generated.meaning.projection == "tmerc";
             return isSame || generated.text.isWkt2() ? Result() : Result(doubtful);
         }},
        {"another PROJ definition beside",
         [](GeneratedText& generated, Random&) {
             generated.text.beside = "EXTENSION[\"PROJ4\",\"+proj=tmerc +lat_0=1 +lon_0=2 +k=0.5 +x_0=3 +y_0=4 "
                                     "+ellps=bessel +units=m +no_defs\"]";
             return generated.text.dialect == Dialect::Gdal ? Result(doubtful) : Result();
         }},
        {"a longitude of a turn more",
         [](GeneratedText& generated, Random& random) {
             Parameter* const longitude = anyOf(
                 generated.text, random, [](const Parameter& parameter) { return parameter.key.startsWith("lon"); });
             longitude->number = number(longitude->number.toDouble() + 360 / degreesPerUnit(generated.text));
             return Result(open);
         }},
        {"another notation of a number",
         [](GeneratedText& generated, Random& random) {
             return changeNumber(generated, random, says, [&](QByteArray& text) {
                 const double value = text.toDouble();
                 text = random.oneIn(2)      ? QByteArray::number(value, 'e', 14)
                        : text.contains('.') ? text + "000"
                                             : text + '.';
                 return true;
             });
         }},
        {"a parameter dropped",
         [](GeneratedText& generated, Random& random) {
             WktText& text = generated.text;
             Parameter* const dropped = anyOf(text, random);
             const Expectation expectation = isSaidTwice(text, *dropped) ? open : doubtful;
             text.parameters.removeAt(int(dropped - text.parameters.data()));
             return Result(expectation);
         }},
        {"a parameter repeated",
         [](GeneratedText& generated, Random& random) {
             const Parameter repeated = *anyOf(generated.text, random);
             generated.text.parameters.append(repeated);
             return Result(open);
         }},
        {"a parameter repeated with another number",
         [](GeneratedText& generated, Random& random) {
             Parameter repeated = *anyOf(generated.text, random);
             const QByteArray other = anyOf(generated.text, random)->number;
             if (other == repeated.number)
                 return Result();
             repeated.number = other;
             generated.text.parameters.insert(random.below(generated.text.parameters.size() + 1), repeated);
             return Result(doubtful);
         }},
        {"a parameter misspelt",
         [](GeneratedText& generated, Random& random) {
             Parameter* const parameter = anyOf(generated.text, random);
             parameter->name = misspelt(parameter->name, random);
             return Result(open);
         }},
        {"a parameter in place of another",
         [](GeneratedText& generated, Random& random) {
             Parameter* const lost = anyOf(generated.text, random);
             const Parameter* const other = anyOf(generated.text, random, [&](const Parameter& candidate) {
                 return candidate.key != lost->key && candidate.number == lost->number;
             });
             if (!other || isSaidTwice(generated.text, *lost))
                 return Result();
             lost->name = other->name;
             lost->code = other->code;
             return Result(doubtful);
         }},
        {"a parameter of other methods beside",
         [](GeneratedText& generated, Random& random) {
             constexpr const char* names[] = {"scale_factor", "standard_parallel_1", "standard_parallel_2",
                                              "azimuth",      "latitude_of_point_1", "height",
                                              "convergence"};
             const QByteArray name = random.pick(names);
             // These may have any of them, or one that repeats the origin.
             const bool isTaken = generated.text.method == "Lambert_Conformal_Conic" ||
                                  generated.text.method == "Lambert_Conformal_Conic_1SP" ||
                                  generated.text.method == "Swiss_Oblique_Cylindrical";
             for (const Parameter& parameter : qAsConst(generated.text.parameters)) {
                 if (isTaken || parameter.name.toLower() == name)
                     return Result();
             }
             const QByteArray value = anyOf(generated.text, random)->number;
             const bool isNeutral = value == "0" || value == "1";
             return addParameter(generated.text, name.constData(), value, isNeutral ? open : doubtful);
         }},
        {"a parameter without number",
         [](GeneratedText& generated, Random& random) { return setNumber(anyOf(generated.text, random), {}); }},
        {"the ellipsoid repeated as parameters",
         [](GeneratedText& generated, Random&) {
             WktText& text = generated.text;
             addParameter(text, "semi_major", text.semiMajorAxis, says);
             return addParameter(text, "semi_minor", semiMinorAxis(text), says);
         }},
        {"another ellipsoid as parameters",
         [](GeneratedText& generated, Random&) {
             addParameter(generated.text, "semi_major", "6370997", doubtful);
             return addParameter(generated.text, "semi_minor", "6370997", doubtful);
         }},
        {"a decimal comma", [](GeneratedText& generated,
                               Random& random) { return changeNumber(generated, random, open, insertDecimalComma); }},
        {"a thousands comma",
         [](GeneratedText& generated, Random& random) {
             return changeNumber(generated, random, open, insertThousandsComma);
         }},
        {"a decimal comma in the ellipsoid",
         [](GeneratedText& generated, Random& random) {
             const bool inAxis = insertDecimalComma(generated.text.semiMajorAxis);
             const bool both = !inAxis || random.oneIn(2);
             return inAxis || (both && insertDecimalComma(generated.text.inverseFlattening)) ? Result(open) : Result();
         }},
        {"a thousands comma in the ellipsoid",
         [](GeneratedText& generated, Random&) {
             return insertThousandsComma(generated.text.semiMajorAxis) ? Result(open) : Result();
         }},
        {"a number in quotes or with its unit",
         [](GeneratedText& generated, Random& random) {
             return changeNumber(generated, random, open, [&](QByteArray& text) {
                 text = random.oneIn(2) ? '"' + text + '"' : text + 'm';
                 return true;
             });
         }},
        {"the semi-major axis in kilometres",
         [](GeneratedText& generated, Random&) {
             generated.text.semiMajorAxis = number(generated.text.semiMajorAxis.toDouble() / 1000);
             return Result(open);
         }},
        {"the semi-major axis in feet",
         [](GeneratedText& generated, Random&) {
             WktText& text = generated.text;
             generated.text.semiMajorAxis = number(text.semiMajorAxis.toDouble() / 0.3048);
             text.axisUnit = {"foot", "0.3048"};
             return Result(text.isWkt2() ? says : open);
         }},
        {"the minor axis or the flattening as inverse flattening",
         [](GeneratedText& generated, Random& random) {
             QByteArray& text = generated.text.inverseFlattening;
             text = random.oneIn(2) ? semiMinorAxis(generated.text) : number(1 / text.toDouble());
             return Result(open);
         }},
        {"no inverse flattening",
         [](GeneratedText& generated, Random&) {
             generated.text.inverseFlattening.clear();
             return Result(doubtful);
         }},
        {"a huge length",
         [](GeneratedText& generated, Random& random) {
             constexpr const char* numbers[] = {"1e308", "1e300", "1e999", "-1e308", "nan", "inf"};
             return setNumber(anyOf(generated.text, random, Kind::Length), random.pick(numbers));
         }},
        {"an angle out of range",
         [](GeneratedText& generated, Random& random) {
             constexpr const char* numbers[] = {"1e7", "-1e9", "1e308", "nan"};
             return setNumber(anyOf(generated.text, random, Kind::Angle), random.pick(numbers));
         }},
        {"a scale that is none",
         [](GeneratedText& generated, Random& random) {
             constexpr const char* numbers[] = {"0", "-1", "-0.9996", "1e308", "nan", "500000"};
             return setNumber(anyOf(generated.text, random, Kind::Scale), random.pick(numbers));
         }},
        {"units of ten digits",
         [](GeneratedText& generated, Random& random) {
             const Kind kind = angleOrLength(random);
             const auto& known = kind == Kind::Angle ? TextGenerator::angleUnits() : TextGenerator::lengthUnits();
             changeUnits(generated.text, kind, [&](Unit& unit) {
                 for (const TextGenerator::KnownUnit& candidate : known) {
                     if (unit.name == candidate.gdal || unit.name == candidate.esri)
                         unit.factor = candidate.rounded;
                 }
             });
             // A length in the rounded unit is what the text says, too; and an angle in one that is rare.
             if (kind == Kind::Length)
                 generated.tolerance +=
                     2e-10 * std::hypot(generated.meaning.values["x_0"], generated.meaning.values["y_0"]);
             else if (degreesPerUnit(generated.text) != 1 && degreesPerUnit(generated.text) != 0.9)
                 generated.tolerance = 1e-3;
             return Result(says);
         }},
        {"units of six digits",
         [](GeneratedText& generated, Random& random) {
             changeUnits(generated.text, angleOrLength(random),
                         [](Unit& unit) { unit.factor = QByteArray::number(unit.factor.toDouble(), 'g', 6); });
             return Result(open);
         }},
        {"a unit's name against its factor",
         [](GeneratedText& generated, Random& random) {
             const bool inDegrees = degreesPerUnit(generated.text) == 1;
             const Kind kind = angleOrLength(random);
             changeUnits(generated.text, kind, [&](Unit& unit) {
                 unit.factor = kind == Kind::Length ? (unit.factor == "1" ? "0.3048" : "1")
                                                    : TextGenerator::angleUnits()[inDegrees ? 1 : 0].factor;
             });
             return Result(doubtful);
         }},
        {"a unit without a known name",
         [](GeneratedText& generated, Random& random) {
             changeUnits(generated.text, angleOrLength(random), [](Unit& unit) { unit.name = "local unit"; });
             return Result(says);
         }},
        {"a unit's factor with a comma",
         [](GeneratedText& generated, Random& random) {
             const Kind kind = angleOrLength(random);
             if (!(kind == Kind::Angle ? generated.text.angleUnit : generated.text.lengthUnit).factor.contains('.'))
                 return Result();
             changeUnits(generated.text, kind, [](Unit& unit) { insertDecimalComma(unit.factor); });
             return Result(open);
         }},
        {"a unit's factor that is none",
         [](GeneratedText& generated, Random& random) {
             constexpr const char* factors[] = {"0", "-1", "1e308", "nan", "3.280833333333333", "57.29577951308232"};
             return setFactors(generated, random, random.pick(factors));
         }},
        {"no unit",
         [](GeneratedText& generated, Random& random) {
             changeUnits(generated.text, angleOrLength(random), [](Unit& unit) { unit.name.clear(); });
             return Result(doubtful);
         }},
        {"a parameter in its own unit",
         [](GeneratedText& generated, Random& random) {
             WktText& text = generated.text;
             const Kind kind = angleOrLength(random);
             Parameter* const parameter = anyOf(text, random, kind);
             if (!text.isWkt2() || !parameter)
                 return Result();
             const auto& units = kind == Kind::Angle ? TextGenerator::angleUnits() : TextGenerator::lengthUnits();
             const TextGenerator::KnownUnit& unit = random.pick(units);
             double value = 0;
             for (const TextGenerator::KnownUnit& old : units) {
                 if (parameter->unit.name == old.gdal)
                     value = parameter->number.toDouble() * old.size / unit.size;
             }
             parameter->number = number(value);
             parameter->unit = {unit.gdal, unit.factor};
             return Result(says);
         }},
        {"a parameter in a unit of another kind",
         [](GeneratedText& generated, Random& random) {
             Parameter* const parameter = anyOf(generated.text, random);
             if (!generated.text.isWkt2())
                 return Result();
             parameter->kind = parameter->kind == Kind::Angle ? Kind::Length : Kind::Angle;
             parameter->unit =
                 parameter->kind == Kind::Angle ? Unit{"degree", "0.0174532925199433"} : Unit{"metre", "1"};
             return Result(doubtful);
         }},
        {"axes in two units",
         [](GeneratedText& generated, Random&) {
             if (!generated.text.isWkt2())
                 return Result();
             Unit& unit = generated.text.axes[1].unit;
             unit = unit.factor == "0.3048" ? Unit{"metre", "1"} : Unit{"foot", "0.3048"};
             return Result(doubtful);
         }},
        {"the northing first",
         [](GeneratedText& generated, Random&) {
             if (generated.text.axes.isEmpty())
                 return Result();
             std::swap(generated.text.axes[0], generated.text.axes[1]);
             return Result(says);
         }},
        {"axes that point elsewhere",
         [](GeneratedText& generated, Random& random) {
             constexpr const char* directions[] = {"west", "up", "south", "north"};
             const QByteArray direction = random.pick(directions);
             if (generated.text.axes.isEmpty() || generated.text.axes[0].direction == direction)
                 return Result();
             generated.text.axes[0].direction = direction;
             return Result(doubtful);
         }},
        {"no prime meridian",
         [](GeneratedText& generated, Random&) {
             addToLongitudes(generated.meaning, -meridianOf(generated.text));
             generated.text.meridian.clear();
             return Result(open);
         }},
        {"a meridian without a known name",
         [](GeneratedText& generated, Random&) {
             WktText& text = generated.text;
             addToLongitudes(generated.meaning, 5.5 - meridianOf(text));
             text.meridianName = "Local";
             text.meridian = "5.5";
             text.meridianUnit = {"degree", "0.0174532925199433"};
             return Result(degreesPerUnit(text) != 1 && !text.isWkt2() ? doubtful : says);
         }},
        {"a meridian's name against its number",
         [](GeneratedText& generated, Random&) {
             if (meridianOf(generated.text) == 0)
                 return Result();
             generated.text.meridian = "9";
             return Result(doubtful);
         }},
        {"a natural origin a quarter of the globe away",
         [](GeneratedText& generated, Random&) {
             WktText& text = generated.text;
             if (!generated.meaning.projection.endsWith("no_uoff"))
                 return Result();
             for (Parameter& parameter : text.parameters) {
                 if (parameter.key == "alpha")
                     parameter.number = number(90 / degreesPerUnit(text));
             }
             generated.meaning.projection = "omerc";
             generated.meaning.values["alpha"] = 90;
             // GDAL 1 wrote the Swiss grids like that, and meant the centre.
             if (text.dialect == Dialect::Gdal)
                 return Result(says);
             generated.meaning.values["x_0"] += distanceToNaturalOrigin(generated.meaning);
             return Result(open);
         }},
        {"a method misspelt",
         [](GeneratedText& generated, Random& random) {
             generated.text.method = misspelt(generated.text.method, random);
             return Result(open);
         }},
        {"no method",
         [](GeneratedText& generated, Random&) {
             generated.text.method.clear();
             generated.text.methodCode = 0;
             return Result(doubtful);
         }},
        {"a method's name against its code",
         [](GeneratedText& generated, Random& random) {
             constexpr int codes[] = {9801, 9802, 9804, 9807, 9809, 9815, 9820};
             const int code = random.pick(codes);
             if (generated.text.methodCode == 0 || generated.text.methodCode == code)
                 return Result();
             generated.text.methodCode = code;
             return Result(doubtful);
         }},
        {"a parameter's name against its code",
         [](GeneratedText& generated, Random& random) {
             Parameter* const one = anyOf(generated.text, random);
             Parameter* const other = anyOf(generated.text, random);
             if (generated.text.methodCode == 0 || one->key == other->key || one->number == other->number)
                 return Result();
             std::swap(one->code, other->code);
             return Result(doubtful);
         }},
    };
    return table;
}
