#pragma once

#include "platform/projection/IProjectedSystem.h"

#include <QByteArray>
#include <QVector>

#include <optional>

/// A place, and the two coordinates that it has in a system that is looked for, in the order in which they were given.
struct KnownCoordinates {
    double latitude;  ///< decimal degrees, north positive
    double longitude; ///< decimal degrees from Greenwich, east positive
    double first;
    double second;

    bool operator==(const KnownCoordinates& other) const {
        return latitude == other.latitude && longitude == other.longitude && first == other.first &&
               second == other.second;
    }
};

/// How two coordinates are read as easting and northing.
struct CoordinateReading {
    bool northingFirst = false;
    double unit = 1.0; ///< metres in one of their units
    /// What is added to the easting, in millions of metres: the zone's digits where the system has them before its
    /// easting and the coordinates have not, or, negative, where it is the other way round. 0 else.
    int zoneDigits = 0;
    bool shifted = false; ///< the place is on WGS 84, which the system's datum shift leads to

    /// In how many of order, unit and zone's digits the two differ.
    int differences(const CoordinateReading& other) const;

    GridPoint toGrid(const KnownCoordinates& known) const;
};

/// How near a system comes to the places that coordinates are known of.
struct CoordinateFit {
    CoordinateReading reading;

    /// Between the places and those that the system gives the coordinates: metres on the ground (to half a per cent),
    /// of several places the root of the mean square.
    double distance;

    /// The same without what all the places have in common, as the datum's shift; 0 for a single place.
    double spread;

    /// What systems are ranked by: the distance of a single place; of several also the spread, by so much the more as
    /// there are more. Metres.
    double misfit;

    /// Where the system has the first of the coordinates.
    GeographicPoint place;

    /// Whether two systems come out the same: to a millimetre, or a hundred-thousandth of the misfit.
    bool isSame(const CoordinateFit& other) const;
    double tolerance() const;

    /// The fit of one system, `definition` as createSystem() took it, in the reading that suits the places best: as
    /// easting and northing in metres, the other way round, in feet of both kinds or in `unit` (metres in one unit of
    /// the system's own axes), with and without the zone's digits. Unless another reading comes twice as near, the
    /// coordinates are what they seem. Nothing where the system can't have these coordinates.
    static std::optional<CoordinateFit> best(const IProjectedSystem& system, const QByteArray& definition, double unit,
                                             const QVector<KnownCoordinates>& known);

    /// The fit in one reading.
    static std::optional<CoordinateFit> of(const IProjectedSystem& system, const CoordinateReading& reading,
                                           const QVector<KnownCoordinates>& known);
};
