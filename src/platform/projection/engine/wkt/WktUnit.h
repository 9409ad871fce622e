#pragma once

#include <string_view>

/// A unit as a WKT text states it.
struct WktUnit {
    double factor;  ///< to metres, radians or parts of 1; not a number where name and factor leave a doubt
    bool isRounded; ///< the text's factor has fewer digits than those by which PROJ knows the unit

    /// A factor of few digits counts as that of the common unit whose name it bears. One that is another unit's is in
    /// doubt, and so is one of few digits where the name says only that it is some foot or yard.
    static WktUnit read(std::string_view name, std::string_view factor);

    /// The same for degrees and grads under any name: no other unit of angles is near them.
    static WktUnit ofAngles(double factor);
};
