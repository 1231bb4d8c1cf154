#pragma once

#include <Eigen/Core>
#include <cstddef>
#include <span>
#include <vector>

#include "workbench/analysis/field_vector.h"

namespace Rotavue::Workbench {

/// Finds orders in samples that lie at any shaft angles, by weighted least squares:
///
///     s(a) = mean + drift * p + sum over orders k of  ck * cos(k a) + sk * sin(k a)
///
/// with a the tracked angle and p running from -1 to 1 over the window. All coefficients are found
/// together, so orders that are no whole numbers, and that few turns leave skewed against each
/// other, do not leak into one another; and as a follows the shaft, a changing speed does no harm.
/// (The kernels are those of the time variant discrete Fourier transform, the joint solution its
/// orthogonality compensation: J. R. Blough, D. L. Brown, H. Vold, SAE paper 972006, 1997.)
///
/// A sample weighs as much as the angle that it stands for, which makes sums over samples at equal
/// times into integrals over the angle. From `TaperedTurns` whole turns up, a Hann window over the
/// turns comes on top: it keeps out what is not asked for and lies further than two cycles in the
/// window away, and leaves whole orders exactly orthogonal. Shorter windows are flat and know no
/// drift, which could not be told from a slow order there.
class OrderFit {
public:
    static constexpr double TaperedTurns = 4.0;

    /// Orders above 0, apart from each other; the window in turns.
    OrderFit(std::span<const double> orders, double firstTurn, double endTurn);

    /// Takes one sample of both probes: at so many turns, standing for so many turns.
    void add(double turn, double share, double x, double y);

    /// Samples taken so far.
    std::size_t count() const { return count_; }

    /// The best orders for all samples taken, in the order asked for; empty when the samples leave
    /// them undetermined.
    std::vector<OrderVectors> solve();

private:
    double weight(double turn, double share) const;
    void accumulate();

    std::vector<double> orders_;
    double firstTurn_;
    double endTurn_;
    bool tapered_;
    std::size_t count_ = 0;
    Eigen::Index filled_ = 0;
    Eigen::MatrixXd rows_;    ///< of the block being filled, weighted: basis, then x and y
    Eigen::MatrixXd normal_;  ///< sum of row^T * row
};

}  // namespace Rotavue::Workbench
