// Building the models that settle open questions.
#include "solver/engines/lp_questions.hpp"

#include <ClpSimplex.hpp>
#include <algorithm>
#include <cmath>

namespace vorqsolver {

namespace {

// The columns by which the rows may be missed, up and down.
class Misses {
 public:
  void Add(int row, double sign) {
    rows_.push_back(row);
    signs_.push_back(sign);
    starts_.push_back(Count());
  }

  void AppendTo(ClpSimplex& simplex) const {
    std::vector<double> const lower(rows_.size(), 0.0);
    std::vector<double> const upper(rows_.size(), COIN_DBL_MAX);
    std::vector<double> const cost(rows_.size(), 1.0);
    simplex.addColumns(Count(), lower.data(), upper.data(), cost.data(), starts_.data(), rows_.data(), signs_.data());
  }

  int Count() const { return static_cast<int>(rows_.size()); }
  int RowOf(int miss) const { return rows_[static_cast<std::size_t>(miss)]; }
  double SignOf(int miss) const { return signs_[static_cast<std::size_t>(miss)]; }

 private:
  std::vector<int> rows_;
  std::vector<double> signs_;
  std::vector<CoinBigIndex> starts_ = {0};
};

// Each column at its bound next to 0; gives the activities of the rows.
std::vector<double> RestAtBounds(LinearModel const& model, ClpSimplex& simplex) {
  std::vector<double> point(model.ColCount());
  for (int col = 0; col < model.ColCount(); ++col) {
    double const lower = model.lower[col];
    double const upper = model.upper[col];
    bool const isFree = lower <= -kInfinity && upper >= kInfinity;
    bool const isAtLower = upper >= kInfinity || (lower > -kInfinity && std::abs(lower) <= std::abs(upper));
    point[col] = isFree ? 0.0 : isAtLower ? lower : upper;
    simplex.setColumnStatus(col, isFree      ? ClpSimplex::isFree
                                 : isAtLower ? ClpSimplex::atLowerBound
                                             : ClpSimplex::atUpperBound);
  }
  std::vector<double> activity(model.RowCount(), 0.0);
  for (int row = 0; row < model.RowCount(); ++row) {
    model.VisitRow(row, [&](int col, double value) { activity[row] += value * point[col]; });
  }
  return activity;
}

}  // namespace

void LoadElastic(LinearModel const& model, ClpSimplex& simplex) {
  LinearModel withoutCost = model;
  std::ranges::fill(withoutCost.cost, 0.0);
  withoutCost.Load(simplex);
  Misses misses;
  for (int row = 0; row < model.RowCount(); ++row) {
    if (model.rowLower[row] > -kInfinity) misses.Add(row, 1.0);
    if (model.rowUpper[row] < kInfinity) misses.Add(row, -1.0);
  }
  misses.AppendTo(simplex);
  simplex.createStatus();
  auto const activity = RestAtBounds(model, simplex);
  for (int miss = 0; miss < misses.Count(); ++miss) {
    int const row = misses.RowOf(miss);
    bool const isUp = misses.SignOf(miss) > 0.0;
    bool const isMissed = isUp ? activity[row] < model.rowLower[row] : activity[row] > model.rowUpper[row];
    simplex.setColumnStatus(model.ColCount() + miss, isMissed ? ClpSimplex::basic : ClpSimplex::atLowerBound);
    // The row gives way in the basis.
    if (isMissed) simplex.setRowStatus(row, isUp ? ClpSimplex::atLowerBound : ClpSimplex::atUpperBound);
  }
}

void LoadDirections(LinearModel const& model, ClpSimplex& simplex) {
  LinearModel directions = model;
  auto const narrow = [](std::vector<double>& lower, std::vector<double>& upper, double most) {
    for (double& side : lower) side = side > -kInfinity ? 0.0 : -most;
    for (double& side : upper) side = side < kInfinity ? 0.0 : most;
  };
  narrow(directions.lower, directions.upper, 1.0);
  narrow(directions.rowLower, directions.rowUpper, COIN_DBL_MAX);
  directions.Load(simplex);
}

}  // namespace vorqsolver
