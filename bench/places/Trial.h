#pragma once

#include "RegistryEntry.h"
#include "panel/computing/SystemSearch.h"

#include <QVector>

class IProjectionModule;

/// How the coordinates are given that a system is looked for with.
struct TrialWay {
    const char* title;
    bool northingFirst;
    double unit;       ///< metres; 0 for the unit of the system's own axes
    bool zoneMistaken; ///< the zone's digits left out where the system has them, or put before the easting
    double placeOff;   ///< metres by which the place is off, in any direction
    int points;
};

/// One way over all systems: how often the system is found.
class Trial {
public:
    Trial(IProjectionModule& module, const TrialWay& way) : module(module), way(way) {}

    /// Tries the system `code`, whose places and coordinates PROJ computed; `bearings` (degrees), one a place, say
    /// where the places are off to. What does not suit the way is left out.
    void run(SystemSearch& search, const QByteArray& code, double ownUnit,
             const QVector<RegistryEntry::Sample>& samples, const QVector<double>& bearings);

    void print(bool verbose) const;

    /// Whether the system, or one that gives the same coordinates to the millimetre, was always in the first three
    /// rows.
    bool isComplete() const { return amongThree == count; }

    static void printHead();

private:
    bool isSame(const FoundSystem& found, const QByteArray& code, const QVector<KnownCoordinates>& exact) const;
    int zoneDigits(const QByteArray& definition) const;

    IProjectionModule& module;
    TrialWay way;
    int count = 0, first = 0, amongThree = 0, itself = 0, distinct = 0;
    QByteArrayList missed;
};
