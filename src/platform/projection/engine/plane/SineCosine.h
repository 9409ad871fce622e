#pragma once

#include "catalogue/Angle.h"

#include <cmath>

/// Sine and cosine of an angle in degrees, exact at the multiples of a right angle and near them.
struct SineCosine {
    explicit SineCosine(double degrees) {
        const double turns = std::remainder(degrees, 360);
        const double fromRight = std::abs(turns) - 90;
        const bool isSteep = std::abs(fromRight) < 45;
        const bool isBehind = fromRight >= 45;
        const double angle = isSteep ? fromRight : isBehind ? std::abs(turns) - 180 : turns;
        const double sineOfAngle = std::sin(Angle::toRadians(angle));
        const double cosineOfAngle = std::cos(Angle::toRadians(angle));
        sine = isSteep    ? std::copysign(cosineOfAngle, turns)
               : isBehind ? std::copysign(1, turns) * -sineOfAngle
                          : sineOfAngle;
        cosine = isSteep ? -sineOfAngle : isBehind ? -cosineOfAngle : cosineOfAngle;
    }

    double sine, cosine;
};
