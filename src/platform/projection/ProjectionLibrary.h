#pragma once

/// One definition held by the projection library. The library owns it and gives the same handle for equal definitions.
using ProjHandle = const void*;

struct ProjEllipsoid {
    const char* id;
    double a;         ///< semi-major axis in metres
    double b;         ///< semi-minor axis in metres
    const char* name; ///< as the EPSG registry names it, or null
};

/// Shift to WGS 84 in the position-vector convention, as PROJ's +towgs84.
struct ProjTowgs84 {
    double dx, dy, dz; ///< metres
    double rx, ry, rz; ///< arc-seconds
    double ppm;        ///< parts per million
};

/// Takes a PROJ.4 definition text apart. Null, an empty or an unreadable text give a handle whose definition is empty,
/// whose ellipsoid is GRS 1980 and whose shift is zero. The handle is never released by the caller.
ProjHandle InitializeProj(const char* definition);

/// The normalised definition, items "+key=value" separated by blanks: lon_0, k_0, x_0, y_0 for a utm zone, longitudes
/// from Greenwich, lengths in metres, k_0=1 where the method has a scale and none is given; numbers with all their
/// digits and without "+" inside. A definition that no method of the parameter record holds exactly comes back without
/// its projection and scale. Owned by the library.
const char* GetProjDefine(ProjHandle handle);

ProjEllipsoid GetProjEllipsoid(ProjHandle handle);

/// Zero where the definition has no shift, one by grids, or one with a scale difference beyond 1,000 ppm.
ProjTowgs84 GetTowgs84(ProjHandle handle);
