#pragma once

#include <QByteArray>

#include <vector>

/// One projected system of the registry. Texts are UTF-8.
struct RegistrySystem {
    QByteArray code; ///< EPSG code
    QByteArray name;
    QByteArray area;   ///< where it is used, in words
    QByteArray method; ///< projection method as EPSG names it
    bool deprecated;
    bool hasExtent; ///< whether the four below are known
    double west;    ///< bounding box of the area in degrees; west > east when it crosses the antimeridian
    double south;
    double east;
    double north;
};

/// One ellipsoid of the registry.
struct RegistryEllipsoid {
    int code; ///< EPSG code
    QByteArray name;
    bool deprecated;
    double a;                 ///< semi-major axis in metres
    double b;                 ///< semi-minor axis in metres
    double inverseFlattening; ///< 0 for a sphere
};

/// One shift of three or seven parameters from a system's datum to WGS 84.
struct RegistryShift {
    QByteArray name;
    QByteArray area;
    double accuracy;  ///< metres, or negative when unknown
    double values[7]; ///< as PROJ's +towgs84: metres, arc-seconds (position vector), ppm
};

/// A projected system of the registry as a parameter record of this tool can hold it.
struct RegistryDefinition {
    /// "+proj=... +a=... +rf=... +units=m +no_defs", as IProjectionModule::createSystem() takes it: degrees from
    /// Greenwich, metres whatever the unit of the axes, no shift. Empty when no method holds the system exactly.
    QByteArray definition;
    QByteArray datum;   ///< as IEpsgRegistry::datumName()
    bool northingFirst; ///< the registry's first axis is the northing; both point east and north, or are a polar grid's
    double unit;        ///< metres in one unit of the axes; 0 for an unknown code
};

/// The EPSG registry in PROJ's database.
class IEpsgRegistry {
public:
    virtual ~IEpsgRegistry() = default;

    /// All projected systems, deprecated ones included, in order of their codes. Read by the first call (about 0.1 s);
    /// empty when PROJ's database can't be found.
    virtual const std::vector<RegistrySystem>& projectedSystems() = 0;

    /// The shifts to WGS 84 that the registry has for the datum of `code` and that meet its area, PROJ's first choice
    /// first (larger part of the area, then higher accuracy). Empty for an unknown code.
    virtual std::vector<RegistryShift> datumShifts(const QByteArray& code) = 0;

    /// The shifts to WGS 84 that the registry has for the datum of that name and that are used at a place (degrees).
    /// Empty for a name that is none of datumNames().
    virtual std::vector<RegistryShift> datumShiftsAt(const QByteArray& datumName, double latitude,
                                                     double longitude) = 0;

    /// The names of all geodetic datums that count longitudes from Greenwich, in alphabetical order, without deprecated
    /// ones. Read by the first call (about 0.05 s); empty when PROJ's database can't be found.
    virtual const std::vector<QByteArray>& datumNames() = 0;

    /// The name of the datum of the system `code`, counted from Greenwich: "CH1903", not "CH1903 (Bern)". Empty for an
    /// unknown code, and where the registry leaves the datum open.
    virtual QByteArray datumName(const QByteArray& code) = 0;

    /// Which edition of the registry this is: "EPSG v10.076". Empty when PROJ's database can't be found.
    virtual QByteArray edition() = 0;

    /// The system `code` as WKT 2:2019, with `shift` (may be null) as its shift to WGS 84. Empty for an unknown code.
    virtual QByteArray wkt(const QByteArray& code, const RegistryShift* shift) = 0;

    /// What an import of the system's WKT makes of it, without its name. Read when it is first asked for (0.1 ms; of
    /// all 5,500 0.6 s), and kept as long as the registry. Empty for an unknown code.
    virtual const RegistryDefinition& definition(const QByteArray& code) = 0;

    /// The system `code` as createSystem() takes it to compute with, where no method holds it and definition() has
    /// none: as PROJ says it, in metres, an axis that points west or south included (+axis). Empty where PROJ can't say
    /// it.
    virtual QByteArray withheldDefinition(const QByteArray& code) = 0;

    /// The unit of the system's axes as EPSG names it ("metre", "US survey foot"); empty for an unknown code.
    virtual QByteArray unitName(const QByteArray& code) = 0;

    /// All ellipsoids, deprecated ones included. Where the registry states an axis in feet, or the minor axis, that is
    /// converted in double precision. Empty when PROJ's database can't be found.
    virtual std::vector<RegistryEllipsoid> ellipsoids() = 0;
};
