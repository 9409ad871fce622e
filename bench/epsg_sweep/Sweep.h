#pragma once

#include "RegistryEntry.h"

#include <QMap>
#include <QTemporaryDir>

class ICoordSystem;

/// Sends systems of the registry through the tool's import in one dialect of WKT, through a save and a load of the
/// catalogue file, and compares what the records compute with what PROJ computes for the registry's entries.
class Sweep {
public:
    struct Options {
        const char* registry = "EPSG";
        int every = 1;              ///< of the registry's entries, only each `every`-th
        bool deprecatedToo = false; ///< entries that the registry has withdrawn as well
        bool verbose = false;       ///< also name each system that is flagged or wrong
    };

    Sweep(PJ_CONTEXT* context, const char* name, PJ_WKT_TYPE dialect, const Options& options);

    /// Runs the sweep and prints its tables. False when a system came out silently wrong.
    bool run();

private:
    struct Count {
        int total = 0;
        int right = 0; ///< within 1 mm
        int centimetre = 0;
        int decimetres = 0; ///< within 20 cm
        int flagged = 0;
        int farOff = 0;
        int withoutReference = 0; ///< defined, but PROJ itself can't compute the registry's entry

        int silentlyWrong() const { return centimetre + decimetres + farOff; }
    };

    struct System {
        QByteArray code;
        QByteArray method;
        QByteArray wkt;
        QString file;
        QVector<RegistryEntry::Sample> samples;
    };

    void collect();
    void importAll();
    double runGdal(const System& system) const;
    double runImport(const System& system, ICoordSystem& catalogue) const;
    void compare();
    void classify(const System& system, const QByteArray& definition);
    double largestDeviation(const System& system, const QByteArray& definition) const;
    void print() const;

    PJ_CONTEXT* context;
    const char* name;
    PJ_WKT_TYPE dialect;
    Options options;
    QTemporaryDir folder;
    QVector<System> systems;
    int notWritable = 0;
    double gdalSeconds = 0;
    double importSeconds = 0;
    Count all;
    QMap<QByteArray, Count> byMethod;
    QMap<QByteArray, int> whyFlagged; ///< by the words that the tool has for it
};
