#pragma once

#include <complex>
#include <vector>

#include "workbench/recording/reading_watch.h"

namespace Rotavue::Workbench {

/// Which orders pass: all up to `pass` untouched, none from `stop` on, in between along half a
/// cosine.
struct OrderBand {
    double pass = 0.8;   ///< cycles per turn
    double stop = 0.95;  ///< above pass
};

/// Leaves the low orders of a signal at equal steps of the shaft's angle, without shifting them in
/// phase. The real part is one probe and the imaginary part the other, so both go through the same
/// filter.
///
/// The filter multiplies the signal's spectrum. So that it sees no edge, the signal is continued on
/// both sides by up to 16 turns: 1X, 2X and 3X, as the first and last eight turns have them, go on
/// as they are, and the rest is turned about the end point (as is usual before filtering forward
/// and backward, F. Gustafsson, IEEE Trans. Signal Processing 44, 1996). Turning everything about
/// the end point would read a large 1X as a shift of the mean there.
///
/// `perTurn` values make a turn; there are two turns or more. Throws ReadingCancelled.
std::vector<std::complex<double>> lowOrders(const std::vector<std::complex<double>>& signal,
                                            int perTurn, const OrderBand& band,
                                            const ReadingProgress& progress = ReadingProgress());

}  // namespace Rotavue::Workbench
