#include "panel/computing/ShiftFromPoints.h"

#include "catalogue/Angle.h"
#include "catalogue/CoordParamKey.h"
#include "catalogue/Dictionary.h"
#include "panel/computing/LeastSquares.h"
#include "panel/record/CoordParamEditor.h"
#include "panel/record/DatumFields.h"
#include "panel/record/NumberText.h"
#include "panel/record/PanelText.h"

#include <Eigen/Cholesky>
#include <Eigen/Eigenvalues>
#include <Eigen/Geometry>

#include <algorithm>
#include <cmath>

namespace {

using Eigen::Index;
using Eigen::Matrix3d;
using Eigen::MatrixXd;
using Eigen::Vector3d;
using Eigen::VectorXd;
using Point = ShiftFromPoints::Point;

constexpr double arcSecondsPerRadian = 180.0 * 3600.0 / Angle::pi;

/// Nearer to each other than this, in metres, two points are one.
constexpr double samePlace = 0.001;

/// Less wide than this part of their length, points lie on a line.
constexpr double lineWidth = 0.001;

constexpr double tooCorrelated = 0.99;

Vector3d vector(const GeocentricPoint& point) {
    return {point.x, point.y, point.z};
}

/// The matrix of the cross product with `x` from the left.
Matrix3d cross(const Vector3d& x) {
    Matrix3d matrix;
    matrix << 0.0, -x.z(), x.y(), x.z(), 0.0, -x.x(), -x.y(), x.x(), 0.0;
    return matrix;
}

/// Two of the points that are one, or null.
std::pair<const Point*, const Point*> twins(QVector<const Point*> points) {
    const auto isLess = [](const Point* left, const Point* right) { return left->own.x < right->own.x; };
    std::sort(points.begin(), points.end(), isLess);
    for (int i = 0; i < points.size(); ++i) {
        for (int j = i + 1; j < points.size() && points[j]->own.x - points[i]->own.x < samePlace; ++j) {
            if ((vector(points[j]->own) - vector(points[i]->own)).norm() < samePlace)
                return {std::min(points[i], points[j]), std::max(points[i], points[j])};
        }
    }
    return {nullptr, nullptr};
}

/// The coordinates around the centroid, a point in each column.
MatrixXd centred(const QVector<const Point*>& points, const Vector3d& centroid) {
    MatrixXd places(3, points.size());
    for (int i = 0; i < points.size(); ++i)
        places.col(i) = vector(points[i]->own) - centroid;
    return places;
}

/// Whether the points are as good as on a straight line, as the Earth's surface would have it: a great circle is one.
bool areOnLine(const MatrixXd& places, const Vector3d& centroid) {
    const Vector3d up = centroid.normalized();
    const MatrixXd flat = places - up * (up.transpose() * places);
    const Eigen::SelfAdjointEigenSolver<Matrix3d> spread(Matrix3d(flat * flat.transpose()), Eigen::EigenvaluesOnly);
    const Vector3d& squares = spread.eigenvalues(); // ascending: what is left of the height, the width, the length
    return !(squares(1) > lineWidth * lineWidth * squares(2));
}

/// Whether a record can hold the parameters.
bool isAccepted(const ShiftFromPoints::Parameters& values) {
    bool isSound = true;
    for (std::size_t i = 0; i < values.size(); ++i)
        isSound = isSound && DatumFields::shift()[i].accepts(values[i]);
    return isSound;
}

/// How far an F value of three and `redundancy` degrees of freedom is out, in standard deviations of a normal variable
/// (Paulson 1942, An approximate normalization of the analysis of variance distribution).
double normalized(double f, double redundancy) {
    const double root = std::cbrt(f), a = 2.0 / (9.0 * 3.0), b = 2.0 / (9.0 * redundancy);
    return ((1.0 - b) * root - (1.0 - a)) / std::sqrt(b * root * root + a);
}

/// Whether the observations of a point, which begin in row `row`, don't belong to the others'.
bool isOutlier(const LeastSquares& solution, const MatrixXd& design, Index row) {
    constexpr double limit = 3.5; // 1 in 4,000
    const double without = double(solution.redundancy) - 3.0;
    if (without < 3.0)
        return false;
    const auto rows = design.middleRows<3>(row);
    const Matrix3d own = Matrix3d::Identity() - rows * solution.cofactors * rows.transpose();
    const Vector3d left = solution.residuals.segment<3>(row);
    // What the point adds to the sum of squares.
    const double added = left.dot(own.ldlt().solve(left));
    const double others = std::max(solution.residuals.squaredNorm() - added, 0.0);
    // Below a tenth of a millimetre lies the noise of the coordinates themselves.
    constexpr double noise = 1e-8;
    return normalized(added / 3.0 / std::max(others / without, noise), without) > limit;
}

QString deviationText(double metres) {
    return NumberText::rounded(metres, metres < 0.1 ? 4 : 3);
}

} // namespace

std::optional<ShiftFromPoints::Parameters> ShiftFromPoints::ofRecord(const IDictionary& record) {
    constexpr double sevenParameters = 2.0;
    if (dictionary_number(record, CoordParamKey::shiftType, 0.0) != sevenParameters)
        return std::nullopt;
    Parameters shift;
    for (std::size_t i = 0; i < shift.size(); ++i) {
        if (!DatumFields::shift()[i].read(record, &shift[i]))
            return std::nullopt;
    }
    return shift;
}

ShiftFromPoints::Residual ShiftFromPoints::residual(const Parameters& shift, const Point& point) {
    const Vector3d own = vector(point.own);
    const Vector3d rotation = Vector3d(shift[3], shift[4], shift[5]) / arcSecondsPerRadian;
    const Vector3d moved =
        Vector3d(shift[0], shift[1], shift[2]) + rotation.cross(own) + shift[6] * 1e-6 * (own + rotation.cross(own));
    const Vector3d left = moved - (vector(point.wgs84) - own);
    const double phi = Angle::toRadians(point.place.latitude), lambda = Angle::toRadians(point.place.longitude);
    const Vector3d east(-std::sin(lambda), std::cos(lambda), 0.0);
    const Vector3d up(std::cos(phi) * std::cos(lambda), std::cos(phi) * std::sin(lambda), std::sin(phi));
    return {left.dot(east), left.dot(up.cross(east)), left.dot(up)};
}

ShiftFromPoints ShiftFromPoints::solve(const QVector<Point>& points, Kind kind) {
    ShiftFromPoints result;
    result.solvedKind = kind;
    QVector<const Point*> used;
    for (const Point& point : points) {
        if (point.isUsed)
            used.append(&point);
    }
    const int fewest = kind == Kind::Seven ? 3 : 1;
    if (used.size() < fewest) {
        result.reason = kind == Kind::Seven
                            ? PanelText::tr("Seven parameters need three points or more on both datums.")
                            : PanelText::tr("Three parameters need one point or more on both datums.");
        return result;
    }
    if (const auto [first, second] = twins(used); first) {
        result.reason = PanelText::tr("\"%1\" and \"%2\" are the same point: leave one of them out.")
                            .arg(first->name, second->name);
        return result;
    }

    Vector3d centroid = Vector3d::Zero();
    for (const Point* point : qAsConst(used))
        centroid += vector(point->own) / double(used.size());
    const MatrixXd places = centred(used, centroid);

    const Index count = Index(kind);
    MatrixXd design = MatrixXd::Zero(Index(3) * used.size(), count);
    VectorXd shifts(design.rows());
    for (int i = 0; i < used.size(); ++i) {
        const Index row = Index(3) * i;
        shifts.segment<3>(row) = vector(used[i]->wgs84) - vector(used[i]->own);
        design.block<3, 3>(row, 0).setIdentity();
        if (kind == Kind::Seven) {
            design.block<3, 3>(row, 3) = -cross(places.col(i)); // q × x = -x × q
            design.block<3, 1>(row, 6) = places.col(i);
        }
    }
    const LeastSquares solution = LeastSquares::solve(design, shifts);
    if (!solution.isDetermined() || (kind == Kind::Seven && areOnLine(places, centroid))) {
        result.reason =
            PanelText::tr("The points lie on a line, around which they leave the rotation open. Add a point "
                          "beside the line, or take three parameters.");
        return result;
    }
    result.weight = solution.unitWeight();
    result.leftOver = int(solution.redundancy);
    Index row = 0;
    for (const Point& point : points) {
        result.outlying.append(point.isUsed && isOutlier(solution, design, row));
        row += point.isUsed ? 3 : 0;
    }

    // From the centroid, in (T, q, s) with q = (1 + s) r, to the geocentre, in (T, r, s) in the record's units.
    VectorXd values = solution.values;
    MatrixXd toGeocentre = MatrixXd::Identity(count, count);
    if (kind == Kind::Seven) {
        const Vector3d q = values.segment<3>(3);
        const double scale = 1.0 + values(6);
        values.head<3>() -= values(6) * centroid + q.cross(centroid);
        values.segment<3>(3) = q / scale;
        toGeocentre.block<3, 3>(0, 3) = cross(centroid);
        toGeocentre.block<3, 1>(0, 6) = -centroid;
        toGeocentre.block<3, 3>(3, 3) *= arcSecondsPerRadian / scale;
        toGeocentre.block<3, 1>(3, 6) = -q * (arcSecondsPerRadian / (scale * scale));
        toGeocentre(6, 6) = 1e6;
        values.segment<3>(3) *= arcSecondsPerRadian;
        values(6) *= 1e6;
    }
    const MatrixXd cofactors = toGeocentre * solution.cofactors * toGeocentre.transpose();
    for (Index i = 0; i < count; ++i) {
        result.values[std::size_t(i)] = values(i);
        result.valueDeviations[std::size_t(i)] = result.weight * std::sqrt(cofactors(i, i));
    }
    if (!isAccepted(result.values)) {
        result.reason =
            PanelText::tr("No datum shift is as large as these points would have it. Are both places of each "
                          "the same point, on the right datum?");
        return result;
    }
    if (kind == Kind::Three)
        return result;

    const MatrixXd correlations = LeastSquares::correlations(cofactors);
    for (int i = 0; i < count; ++i) {
        for (int j = i + 1; j < count; ++j)
            result.strongest.append({i, j, correlations(i, j)});
    }
    std::stable_sort(
        result.strongest.begin(), result.strongest.end(),
        [](const Correlation& left, const Correlation& right) { return std::abs(left.value) > std::abs(right.value); });
    // How far a translation follows from the rotations and the scale: its multiple correlation with them. That of two
    // parameters alone would not tell, each translation being bound to several.
    double multiple = 0.0;
    for (Index i = 0; i < 3; ++i)
        multiple = std::max(multiple, std::sqrt(1.0 - 1.0 / (double(used.size()) * cofactors(i, i))));
    if (multiple <= tooCorrelated)
        return result;
    result.recommendation =
        PanelText::tr("The area is too small to tell the translations from rotations and scale (correlation %1): the "
                      "values mean nothing one by one, and hold within the area only. Three parameters are recommended "
                      "if what they leave will do: a standard deviation of %2 m, against %3 m of seven.")
            .arg(QString::number(std::floor(multiple * 1e4) / 1e4, 'f', 4),
                 deviationText(solve(points, Kind::Three).weight), deviationText(result.weight));
    return result;
}

void ShiftFromPoints::apply(CoordParamEditor& editor) const {
    if (!reason.isEmpty())
        return;
    editor.setShift(true);
    constexpr int decimals[] = {4, 4, 4, 7, 7, 7, 7};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const ParamField& field = DatumFields::shift()[i];
        editor.setField(field, field.parse(NumberText::rounded(values[i], decimals[i])));
    }
}
