#pragma once

#include <QByteArray>
#include <QMap>
#include <QVector>

enum class Dialect { Gdal, Esri, Wkt2_2015, Wkt2_2019 };

/// A unit as a text states it. An empty name leaves it out.
struct Unit {
    QByteArray name;
    QByteArray factor; ///< to metres or radians
};

/// The text of a projected system, part by part: each string stands in the text as it is, an empty part is left out.
struct WktText {
    enum class Kind { Angle, Length, Scale };

    struct Parameter {
        QByteArray name;
        int code; ///< EPSG's, or 0
        Kind kind;
        QByteArray key; ///< what it says, empty when it has one value only in this method
        QByteArray number;
        Unit unit; ///< WKT 2 only
    };

    struct Axis {
        QByteArray name;
        QByteArray direction;
        QByteArray meridian; ///< of an axis along a meridian, in degrees
        Unit unit;           ///< WKT 2 only
    };

    Dialect dialect;
    QByteArray system = "Generated"; ///< its name
    QByteArray spheroid;
    QByteArray semiMajorAxis;
    QByteArray inverseFlattening;
    QByteArray toWgs84; ///< the numbers of WKT 1's shift, separated by commas
    Unit axisUnit;      ///< the semi-major axis's, WKT 2 only
    QByteArray meridianName;
    QByteArray meridian;
    Unit meridianUnit; ///< WKT 2 only
    Unit angleUnit;
    QByteArray method;
    int methodCode; ///< EPSG's, or 0
    QVector<Parameter> parameters;
    QVector<Axis> axes;
    Unit lengthUnit;
    QByteArray beside; ///< a last node of the system
    QByteArray before; ///< the system
    QByteArray after;
    bool hasRoundBrackets = false;

    bool isWkt2() const { return dialect == Dialect::Wkt2_2015 || dialect == Dialect::Wkt2_2019; }
    QByteArray write() const;
};

/// What a text says: a PROJ definition's projection with values in degrees from Greenwich and metres.
struct Meaning {
    QByteArray projection; ///< "lcc", or with items that are the method's: "stere +lat_0=90"
    QMap<QByteArray, double> values;
    double semiMajorAxis;
    double inverseFlattening;

    QByteArray definition() const;
};
