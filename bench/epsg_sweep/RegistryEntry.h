#pragma once

#include "platform/projection/engine/proj/ProjObject.h"

#include <QByteArray>
#include <QVector>

/// One projected system of a registry in PROJ's database, and what PROJ computes for it.
class RegistryEntry {
public:
    RegistryEntry(PJ_CONTEXT* context, const char* registry, const char* code);

    QByteArray method() const;

    /// Empty when PROJ can't write the system in this dialect.
    QByteArray wkt(PJ_WKT_TYPE dialect) const;
    QByteArray projJson() const;
    QByteArray projText() const;

    /// A place on the system's own datum, degrees from Greenwich, and where it lies on the grid in metres.
    struct Sample {
        double longitude;
        double latitude;
        double easting;
        double northing;
    };

    /// Nine places over the area of use (where the registry has none, around the origin), projected by PROJ's own
    /// operation from the system's base system; of the two methods that PROJ does not compute (the Belgian turn, and a
    /// polar false origin on the parallel), by the formulas of EPSG's guidance note 7-2. Places that PROJ can't project
    /// are left out; none is left when PROJ has no operation for the system.
    QVector<Sample> samples() const;

    /// The same for these places, whose eastings and northings are not looked at.
    QVector<Sample> computed(const QVector<Sample>& places) const;

    struct Box {
        double west, south, east, north; ///< degrees; west is below east
    };
    Box areaOfUse() const;

    /// Of the system's own axes.
    double metresPerUnit() const;

private:
    struct Base {
        double primeMeridian; ///< degrees
        double degreesPerUnit;
    };
    Base base(const PJ* geodetic) const;
    double parameter(const char* name) const;
    void turnBelgian(Sample& sample) const;
    void projectPolarVariantC(Sample& sample) const;

    PJ_CONTEXT* context;
    ProjObject crs;
};

/// All codes of a registry's projected systems that are not deprecated, or all there are, in the order of their
/// numbers.
QVector<QByteArray> registryCodes(PJ_CONTEXT* context, const char* registry, bool deprecatedToo);
