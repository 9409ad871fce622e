#pragma once

/// A bounding box in degrees; west > east when it crosses the antimeridian.
struct GeographicBox {
    double west, south, east, north;

    bool contains(double latitude, double longitude) const {
        const bool isBetween =
            west <= east ? longitude >= west && longitude <= east : longitude >= west || longitude <= east;
        return isBetween && latitude >= south && latitude <= north;
    }
};
