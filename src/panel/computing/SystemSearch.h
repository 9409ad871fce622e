#pragma once

#include "panel/computing/CoordinateFit.h"

#include <QByteArray>
#include <QHash>
#include <QVector>

#include <memory>

class ICoordSystem;
class IProjectionModule;
struct RegistrySystem;

/// A system that gives known coordinates: one of the registry, or one of the catalogue.
struct FoundSystem {
    const RegistrySystem* registered = nullptr; ///< null for one of the catalogue
    QByteArray group;                           ///< of the catalogue; with `name` in the local encoding
    QByteArray name;
    CoordinateFit fit;
    int differences = 0; ///< between the reading and the way in which the system itself counts
    bool isSame = false; ///< gives the coordinates the same place as the one before it
};

/// Looks for the systems that give known coordinates, in the registry and in all groups of the catalogue. Works in
/// slices, so that a window stays alive meanwhile; what was read for one search is kept for the next.
class SystemSearch {
public:
    /// Both outlive the object; `catalogue` may be null. It must not change during a search.
    SystemSearch(IProjectionModule& module, ICoordSystem* catalogue) : module(module), catalogue(catalogue) {}

    /// Begins a search and forgets the one before. Of the registry those systems are tried whose area covers all the
    /// known places, give or take 50 km; deprecated ones only with `deprecatedToo`.
    void start(const QVector<KnownCoordinates>& known, bool deprecatedToo);

    /// Works on for about that time. False when all is done.
    bool work(int milliseconds);

    /// What was found so far, best first: within `nearby` metres, or, where nothing is, the nearest twenty. Systems
    /// that come out the same follow each other: those first that count as the coordinates do, the registry's before
    /// the catalogue's, those in use before deprecated ones, smaller areas before larger ones, then by code.
    QVector<FoundSystem> found() const;

    static constexpr double nearby = 50000.0;

private:
    struct Candidate {
        const RegistrySystem* registered; ///< null for one of the catalogue
        QByteArray group;
        QByteArray name;
    };
    struct Computed {
        QByteArray definition;
        CoordinateReading own; ///< of coordinates as the system itself has them
        std::shared_ptr<const IProjectedSystem> system;
    };

    void addCatalogue();
    Computed computed(const Candidate& candidate);
    std::shared_ptr<const IProjectedSystem> systemOf(const QByteArray& definition);

    IProjectionModule& module;
    ICoordSystem* catalogue;
    QVector<KnownCoordinates> places;
    QVector<Candidate> candidates;
    int next = 0; ///< of `candidates`
    QVector<FoundSystem> fits;
    QHash<QByteArray, std::shared_ptr<const IProjectedSystem>> systems; ///< by definition
};
