#pragma once

#include "panel/computing/Identification.h"

#include <QVector>

#include <random>

/// Identifies systems of the registry, each as a record that an import of its WKT made.
class IdentifySweep {
public:
    /// Of the registry's systems, only each `every`-th.
    IdentifySweep(IProjectionModule& module, int every);

    /// All of them, without any name: each must be found. Also whether an import gives the definition that the registry
    /// itself gives. False when one is not found.
    bool findUnchanged();

    /// `count` of them with a wrong figure in one parameter, each by between 1 mm and 1 km at most over the system's
    /// area: none of the registry may be taken for it but what computes the same. False when one is.
    bool findChanged(int count);

    /// Writes those that count in metres as WKT with their identifiers, with a shift of the registry, and imports the
    /// texts again. False when one does not come back.
    bool exportWithIdentifiers();

private:
    struct System {
        const RegistrySystem* system;
        QByteArray definition;
    };

    const std::vector<RegistryMatch>& identify(const QByteArray& definition);
    double farthestBetween(const QByteArray& left, const QByteArray& right, const RegistrySystem& area) const;
    QByteArray changed(const System& system, double metres);

    IProjectionModule& module;
    Identification identification;
    QVector<System> systems;
    int heldByOneOnly = 0; ///< by an import or by the registry's own definition
    std::mt19937 random{20261125};
    double longestSearch = 0;       ///< milliseconds
    double longestUntilSettled = 0; ///< milliseconds
};
