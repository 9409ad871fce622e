#pragma once

#include "panel/record/ParamField.h"

#include <vector>

/// The fields of the ellipsoid and of the shift to WGS 84.
class DatumFields {
public:
    static const ParamField& semiMajorAxis();
    static const ParamField& inverseFlattening();

    /// The seven parameters: translations, rotations (position-vector convention), scale difference.
    static const std::vector<ParamField>& shift();

    /// A remark on a sound but unusual value of `field`, translated; empty when there is none.
    static QString warning(const ParamField& field, const IDictionary& record);
};
