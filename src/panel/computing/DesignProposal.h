#pragma once

#include "platform/projection/IProjectionModule.h"

#include <QVector>

#include <algorithm>
#include <cmath>
#include <optional>

class CoordParamEditor;
class IDictionary;
struct ParamField;

/// A better scale factor for an area at a mean height, and, where the method has one line of constant scale to place
/// (transverse Mercator: the central meridian; Lambert with one parallel: the parallel), a better line.
///
/// Method: of all values, those whose largest distortion over the area is smallest (Chebyshev's criterion, 1856). With
/// s = k / k0 * R / (R + h) at the area's points, that is the line for which the range of s is narrowest, found by
/// golden section, and k0 = 2 / (smallest s + largest s). For one point it gives what the design of a low-distortion
/// projection starts with: the line through the point and k0 = (R + h) / R (Dennis 2016, Ground Truth: Low Distortion
/// Projections for Engineering, Surveying, and GIS). The factor is rounded to 7 decimals (0.05 ppm), the line to 0.01
/// degrees, or to 0.0001 where the area is smaller than a degree. What makes the largest distortion smaller by less
/// than the factor's rounding is not proposed.
class DesignProposal {
public:
    /// One value that changes, in the unit of its field.
    struct Change {
        const ParamField* field;
        double before;
        double after;
    };

    /// Distortion over the area, in ppm.
    struct Distortion {
        double smallest;
        double largest;

        /// Of the largest value, whatever its sign.
        double extreme() const { return std::max(std::abs(smallest), std::abs(largest)); }
    };

    /// Whether the method has a scale factor to choose. A polar stereographic one with a standard parallel has none.
    static bool isPossible(const IDictionary& record);

    /// Proposes for `points` (one or more, on the system's datum; their heights play no part) at the ellipsoidal height
    /// `height` in metres; with `placeLine` also the line. Without changes where the system is as good as it can be;
    /// nothing when it is not possible or the projection gives no result at a point.
    static std::optional<DesignProposal> make(const IDictionary& record, IProjectionModule& module,
                                              const QVector<GeographicPoint>& points, double height, bool placeLine);

    /// The line that `placeLine` places, or null.
    static const ParamField* lineField(const IDictionary& record);

    const QVector<Change>& changes() const { return changedValues; }
    const Distortion& before() const { return distortionBefore; }
    const Distortion& after() const { return distortionAfter; }

    /// Puts the proposed values into the record, as if the user had typed them.
    void apply(CoordParamEditor& editor) const;

private:
    QVector<Change> changedValues;
    Distortion distortionBefore{0.0, 0.0};
    Distortion distortionAfter{0.0, 0.0};
};
