#include <cmath>

// GCC's own function: it calls this where a sine and a cosine of the same angle are asked for.
extern "C" void sincos(double angle, double* sine, double* cosine) {
    *sine = std::sin(angle);
    *cosine = std::cos(angle);
}
