#include "panel/computing/LeastSquares.h"

#include <Eigen/QR>
#include <Eigen/SVD>

#include <cmath>
#include <limits>

double LeastSquares::unitWeight() const {
    return redundancy > 0 ? std::sqrt(residuals.squaredNorm() / double(redundancy))
                          : std::numeric_limits<double>::quiet_NaN();
}

double LeastSquares::deviation(Eigen::Index value) const {
    return unitWeight() * std::sqrt(cofactors(value, value));
}

LeastSquares LeastSquares::solve(const Eigen::MatrixXd& design, const Eigen::VectorXd& observations) {
    LeastSquares result;
    const Eigen::Index count = design.cols();
    result.redundancy = design.rows() - count;
    result.condition = 0.0;
    const Eigen::VectorXd lengths = design.colwise().norm();
    if (result.redundancy < 0 || count == 0 || lengths.minCoeff() == 0.0)
        return result;
    const Eigen::HouseholderQR<Eigen::MatrixXd> qr(design * lengths.cwiseInverse().asDiagonal());
    const Eigen::MatrixXd r = qr.matrixQR().topRows(count).triangularView<Eigen::Upper>();
    Eigen::JacobiSVD<Eigen::MatrixXd, Eigen::NoQRPreconditioner> singular; // for a square matrix
    singular.compute(r, Eigen::ComputeFullU | Eigen::ComputeFullV);
    const Eigen::VectorXd& sizes = singular.singularValues();
    const double condition = sizes(count - 1) / sizes(0);
    // Below this the values would be the rounding of the observations.
    constexpr double smallest = 1e-12;
    if (!(condition > smallest))
        return result;
    result.condition = condition;
    const Eigen::VectorXd turned = (qr.householderQ().adjoint() * observations).head(count);
    const Eigen::MatrixXd inverse = lengths.cwiseInverse().asDiagonal() * singular.matrixV() *
                                    sizes.cwiseInverse().asDiagonal() * singular.matrixU().transpose();
    result.values = inverse * turned;
    result.cofactors = inverse * inverse.transpose();
    result.residuals = design * result.values - observations;
    return result;
}

Eigen::MatrixXd LeastSquares::correlations(const Eigen::MatrixXd& cofactors) {
    const Eigen::VectorXd scale = cofactors.diagonal().cwiseSqrt().cwiseInverse();
    return scale.asDiagonal() * cofactors * scale.asDiagonal();
}
