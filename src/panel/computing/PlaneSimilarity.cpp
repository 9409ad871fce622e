#include "panel/computing/PlaneSimilarity.h"

#include "catalogue/Angle.h"

#include <cmath>

namespace {

std::complex<double> number(const GridPoint& point) {
    return {point.easting, point.northing};
}

} // namespace

std::optional<PlaneSimilarity> PlaneSimilarity::between(const QVector<GridPoint>& from, const QVector<GridPoint>& to) {
    const double count = from.size();
    std::complex<double> fromCentre, toCentre, product;
    for (int i = 0; i < from.size(); ++i) {
        fromCentre += number(from[i]) / count;
        toCentre += number(to[i]) / count;
    }
    double fromSquare = 0.0, toSquare = 0.0, left = 0.0;
    for (int i = 0; i < from.size(); ++i) {
        fromSquare += std::norm(number(from[i]) - fromCentre);
        toSquare += std::norm(number(to[i]) - toCentre);
        product += std::conj(number(from[i]) - fromCentre) * (number(to[i]) - toCentre);
    }
    constexpr double smallest = 0.01; // metres: below that, the points are one
    if (from.size() < 3 || !(fromSquare > smallest * smallest) || !(toSquare > smallest * smallest))
        return std::nullopt;
    PlaneSimilarity similarity;
    similarity.factor = product / fromSquare;
    similarity.origin = toCentre - similarity.factor * fromCentre;
    for (int i = 0; i < from.size(); ++i)
        left += std::norm(similarity.factor * (number(from[i]) - fromCentre) - (number(to[i]) - toCentre));
    similarity.deviation = std::sqrt(left / (2.0 * count - 4.0) / fromSquare);
    similarity.relativeMisfit = std::sqrt(left / toSquare);
    return similarity;
}

double PlaneSimilarity::rotation() const {
    return Angle::toDegrees(std::arg(factor));
}

double PlaneSimilarity::rotationDeviation() const {
    return Angle::toDegrees(deviation / scale());
}
