#pragma once

#include "platform/projection/IEpsgRegistry.h"

class ProjContext;

/// The ellipsoids of the EPSG registry in PROJ's database, to name one by its axes. The registry is read at the first
/// question.
class EllipsoidNames {
public:
    explicit EllipsoidNames(const ProjContext& context) : context(context) {}

    /// The registry's name of the ellipsoid with these axes in metres, or empty. Axes count as the same when they agree
    /// as far as definitions are commonly written: the semi-major axis to 0.1 mm, and the shape to six decimals of the
    /// inverse flattening or four of the semi-minor axis. The nearest wins; of several with the same axes, the
    /// registry's oldest that is not deprecated.
    QByteArray nameOf(double a, double b);

private:
    void readRegistry();

    const ProjContext& context;
    std::vector<RegistryEllipsoid> ellipsoids; ///< in order of preference
};
