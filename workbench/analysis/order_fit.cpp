#include "workbench/analysis/order_fit.h"

#include <Eigen/Cholesky>
#include <cmath>
#include <numbers>

namespace Rotavue::Workbench {
namespace {

constexpr Eigen::Index BlockRows = 256;
constexpr double LeastCondition = 1e-9;
constexpr double TwoPi = 2.0 * std::numbers::pi;

}  // namespace

OrderFit::OrderFit(std::span<const double> orders, double firstTurn, double endTurn)
    : orders_(orders.begin(), orders.end()),
      firstTurn_(firstTurn),
      endTurn_(endTurn),
      tapered_(endTurn - firstTurn >= TaperedTurns) {
    const Eigen::Index still = tapered_ ? 2 : 1;
    const Eigen::Index columns = still + 2 * static_cast<Eigen::Index>(orders.size()) + 2;
    rows_ = Eigen::MatrixXd::Zero(BlockRows, columns);
    normal_ = Eigen::MatrixXd::Zero(columns, columns);
}

double OrderFit::weight(double turn, double share) const {
    if (!tapered_) return share;
    const double part = (turn - firstTurn_) / (endTurn_ - firstTurn_);
    const double hann = std::sin(std::numbers::pi * part);
    return share * hann * hann;
}

void OrderFit::add(double turn, double share, double x, double y) {
    const double root = std::sqrt(weight(turn, share));
    Eigen::Index column = 0;
    const auto put = [&](double value) { rows_(filled_, column++) = root * value; };
    put(1.0);
    if (tapered_) put(2.0 * (turn - firstTurn_) / (endTurn_ - firstTurn_) - 1.0);
    for (const double order : orders_) {
        put(std::cos(TwoPi * order * turn));
        put(std::sin(TwoPi * order * turn));
    }
    put(x);
    put(y);
    ++count_;
    if (++filled_ == BlockRows) accumulate();
}

void OrderFit::accumulate() {
    const auto block = rows_.topRows(filled_);
    normal_.selfadjointView<Eigen::Lower>().rankUpdate(block.transpose());
    filled_ = 0;
}

std::vector<OrderVectors> OrderFit::solve() {
    accumulate();
    const Eigen::MatrixXd normal = normal_.selfadjointView<Eigen::Lower>();
    const Eigen::Index unknowns = normal.rows() - 2;
    const Eigen::LDLT<Eigen::MatrixXd> solver(normal.topLeftCorner(unknowns, unknowns));
    if (!solver.isPositive() || !(solver.rcond() > LeastCondition)) return {};
    const Eigen::MatrixXd found = solver.solve(normal.topRightCorner(unknowns, 2));
    std::vector<OrderVectors> result;
    Eigen::Index row = tapered_ ? 2 : 1;
    for (const double order : orders_) {
        result.push_back({order, fieldVector(found(row, 0), found(row + 1, 0)),
                          fieldVector(found(row, 1), found(row + 1, 1))});
        row += 2;
    }
    return result;
}

}  // namespace Rotavue::Workbench
