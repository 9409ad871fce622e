#pragma once

#include "platform/projection/IEpsgRegistry.h"
#include "platform/projection/IProjectedSystem.h"

#include <QByteArray>
#include <QVector>

#include <memory>
#include <optional>
#include <vector>

class IProjectionModule;

/// One system of the registry beside the one that is looked for.
struct RegistryMatch {
    /// An item of the definitions ("x_0", "rf") that differs; "rf" is 0 for a sphere.
    struct Difference {
        QByteArray item;
        double here;  ///< degrees, metres or a factor; NaN where the definition has no such item
        double there; ///< in the registry, the same
    };

    const RegistrySystem* system = nullptr;
    const RegistryDefinition* definition = nullptr;
    double distance = 0;             ///< metres between both coordinates of a place, at most over the area of `system`
    QVector<Difference> differences; ///< of nearest() only

    /// What a definition's digits may lose, in metres.
    static constexpr double exactly = 1e-5;
};

/// Finds out which system of the registry a definition is: those whose coordinates are the same all over their area.
/// Ellipsoid and projection count, the shift and all names don't; a datum, a name and a source that are known decide
/// which one of several comes first.
///
/// It works in slices, the likely systems first. The first search reads the registry (1.2 s altogether, 0.15 s to the
/// end of the likely ones), each later one takes some 0.02 s.
class Identification {
public:
    struct Subject {
        QByteArray definition; ///< as IProjectionModule::createSystem() takes it; empty for none
        QByteArray datum;      ///< these in UTF-8; empty when unknown
        QByteArray name;
        QByteArray code; ///< EPSG's

        bool operator==(const Subject& other) const {
            return definition == other.definition && datum == other.datum && name == other.name && code == other.code;
        }
    };

    /// Up to this distance two systems count as the same, in metres: half of what matters. The ellipsoids of WGS 84 and
    /// GRS 1980 make 0.1 mm.
    static constexpr double tolerance = 5e-4;

    /// `module` outlives the object.
    explicit Identification(IProjectionModule& module) : module(module) {}

    /// Begins a search; one that is under way ends.
    void start(const Subject& wanted);

    /// Searches for about that time. True when the search is at its end.
    bool advance(int milliseconds);

    bool isFinished() const { return position == order.size(); }

    /// Whether the likely systems have been looked at, with success, or all.
    bool isSettled() const { return isFinished() || (position >= likely && !same().empty()); }

    /// The systems of the registry that it is, best first; complete when the search is finished.
    const std::vector<RegistryMatch>& same() const { return matches; }

    /// The systems that differ in the fewest items, at most two, best first. Empty until the search is finished, and
    /// where it is a system of the registry.
    const std::vector<RegistryMatch>& nearest() const { return neighbours; }

private:
    /// A place in a system's area, and its coordinates.
    struct Place {
        GeographicPoint point;
        std::optional<GridPoint> grid;
    };

    void putInOrder();
    const Place& placeOf(std::size_t index);
    void compare(std::size_t index);
    std::optional<double> distanceTo(const RegistrySystem& system) const;
    void findNearest();
    void sort(std::vector<RegistryMatch>& list) const;
    int preference(const RegistryMatch& match) const;

    IProjectionModule& module;
    Subject subject;
    std::unique_ptr<IProjectedSystem> projection; ///< of the subject
    std::vector<std::size_t> order;               ///< in which the registry's systems are looked at
    std::size_t likely = 0;                       ///< the first so many of them
    std::size_t position = 0;
    std::vector<std::optional<Place>> places; ///< by the registry's order, as far as they are known
    std::vector<RegistryMatch> matches;
    std::vector<RegistryMatch> neighbours;
};
