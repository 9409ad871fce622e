#pragma once

struct GeographicPoint;

/// Metres between two places close to each other, on a sphere of the radius `radius` (metres); their heights count.
double groundDistance(const GeographicPoint& left, const GeographicPoint& right, double radius);
