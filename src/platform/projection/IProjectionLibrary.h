#pragma once

#include "platform/projection/ProjectionLibrary.h"

/// The projection library's four functions as the module implements them; see ProjectionLibrary.h for what each gives.
/// A null handle is the empty definition.
class IProjectionLibrary {
public:
    virtual ~IProjectionLibrary() = default;

    virtual ProjHandle initialize(const char* definition) = 0;
    virtual const char* define(ProjHandle handle) = 0;
    virtual ProjEllipsoid ellipsoid(ProjHandle handle) = 0;
    virtual ProjTowgs84 towgs84(ProjHandle handle) = 0;
};
