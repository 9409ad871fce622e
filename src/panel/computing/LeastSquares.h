#pragma once

#include <Eigen/Core>

/// A linear adjustment by least squares, with observations of equal weight: design * values = observations. Solved by
/// the QR decomposition of the design matrix (its columns brought to one length) and the singular values of R, which
/// say what the observations determine at all (Björck 1996, Numerical Methods for Least Squares Problems, chapter 2).
struct LeastSquares {
    Eigen::VectorXd values;
    Eigen::VectorXd residuals; ///< computed minus observed
    Eigen::MatrixXd cofactors; ///< of the values: their covariances are unitWeight^2 times these
    Eigen::Index redundancy;   ///< how many observations there are more than values

    /// The smallest singular value over the largest, of columns of one length: 0 where some combination of the values
    /// is not determined, which leaves `values` and `cofactors` empty.
    double condition;

    bool isDetermined() const { return values.size() > 0; }

    /// The standard deviation of an observation; NaN without redundancy.
    double unitWeight() const;

    /// Of a value; NaN as above.
    double deviation(Eigen::Index value) const;

    /// Fewer observations than values are not determined.
    static LeastSquares solve(const Eigen::MatrixXd& design, const Eigen::VectorXd& observations);

    /// The correlations of values with these cofactors.
    static Eigen::MatrixXd correlations(const Eigen::MatrixXd& cofactors);
};
