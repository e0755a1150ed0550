// From the problem to the engines' form, and LP solutions back.
#include "solver/engines/linear_model.hpp"

#include <ClpSimplex.hpp>
#include <algorithm>
#include <limits>
#include <numeric>

#include "solver/problem/failure.hpp"
#include "solver/problem/row_activity.hpp"

namespace vorqsolver {

double ToEngine(double bound) {
  if (bound >= kInfinity) return COIN_DBL_MAX;
  if (bound <= -kInfinity) return -COIN_DBL_MAX;
  return bound;
}

namespace {

std::vector<double> AllToEngine(std::span<double const> bounds) {
  std::vector<double> result(bounds.size());
  std::ranges::transform(bounds, result.begin(), [](double bound) { return ToEngine(bound); });
  return result;
}

void Uncross(std::vector<double>& lower, std::vector<double>& upper) {
  for (std::size_t i = 0; i < lower.size(); ++i) {
    if (lower[i] > upper[i]) lower[i] = upper[i] = std::midpoint(lower[i], upper[i]);
  }
}

}  // namespace

LinearModel::LinearModel(ProblemData const& data, NoSideRows /*none*/)
    : lower(AllToEngine(data.columns.lower)),
      upper(AllToEngine(data.columns.upper)),
      cost(data.columns.objective.begin(), data.columns.objective.end()),
      rowLower(AllToEngine(data.rows.lower)),
      rowUpper(AllToEngine(data.rows.upper)),
      sign(data.objective.sense < 0 ? -1.0 : 1.0),
      data_(&data) {
  for (double& coefficient : cost) coefficient *= sign;
  for (int col = 0; col < data.columns.Count(); ++col) {
    char const type = data.columns.type[col];
    if (type == 'B') {
      lower[col] = std::max(lower[col], 0.0);
      upper[col] = std::min(upper[col], 1.0);
    } else if (type == 'S' || type == 'N') {
      lower[col] = std::min(lower[col], 0.0);
      upper[col] = std::max(upper[col], 0.0);
    }
  }
  Uncross(lower, upper);
  Uncross(rowLower, rowUpper);
}

LinearModel::LinearModel(ProblemData const& data, bool userCuts) : LinearModel(data, NoSideRows()) {
  AddSideRows(data.lazyConstraints);
  if (userCuts) AddSideRows(data.userCuts);
}

void LinearModel::AddSideRows(SideRows const& side) {
  for (int row = 0; row < side.Count(); ++row) {
    auto const view = side.matrix.Row(row);
    std::vector<LinearTerm> terms;
    for (std::size_t k = 0; k < view.indices.size(); ++k) terms.push_back({view.indices[k], view.values[k]});
    AddRow(terms, side.lower[row], side.upper[row]);
  }
}

std::size_t LinearModel::ElementCount() const {
  auto count = static_cast<std::size_t>(std::ranges::count_if(data_->rows.matrix.ColValues(), std::not_fn(IsNothing)));
  for (auto const& terms : added_) count += terms.size();
  return count;
}

int LinearModel::AddCol(double low, double up, double objective) {
  lower.push_back(ToEngine(low));
  upper.push_back(ToEngine(up));
  cost.push_back(objective);
  return ColCount() - 1;
}

void LinearModel::AddRow(std::span<LinearTerm const> terms, double low, double up) {
  std::vector<LinearTerm> merged(terms.begin(), terms.end());
  std::ranges::stable_sort(merged, {}, &LinearTerm::col);
  std::size_t kept = 0;
  for (std::size_t k = 0; k < merged.size(); ++k) {
    if (kept > 0 && merged[kept - 1].col == merged[k].col) {
      merged[kept - 1].value += merged[k].value;
    } else {
      merged[kept++] = merged[k];
    }
  }
  merged.resize(kept);
  std::erase_if(merged, [](LinearTerm const& term) { return IsNothing(term.value); });
  added_.push_back(std::move(merged));
  rowLower.push_back(ToEngine(low));
  rowUpper.push_back(ToEngine(up));
}

CoinPackedMatrix LinearModel::Matrix() const {
  auto const& matrix = data_->rows.matrix;
  auto const begins = matrix.ColBegins();
  auto const rows = data_->rows.Count();
  if (matrix.ElementCount() > static_cast<std::size_t>(std::numeric_limits<CoinBigIndex>::max())) {
    throw Failure(VORQ_MEMORY, "The problem has more elements than the engine can take");
  }
  std::vector<CoinBigIndex> starts(data_->columns.Count() + 1, 0);
  for (std::size_t col = 0; col < starts.size() && col < begins.size(); ++col) {
    starts[col] = static_cast<CoinBigIndex>(begins[col]);
  }
  for (std::size_t col = begins.size(); col < starts.size(); ++col) starts[col] = starts[col - 1];
  CoinPackedMatrix result(true, rows, data_->columns.Count(), starts.back(), matrix.ColValues().data(),
                          matrix.ColIndices().data(), starts.data(), nullptr);
  if (std::ranges::any_of(matrix.ColValues(), IsNothing)) {
    result.compress(kLeast);
    result.removeGaps();
  }
  result.setDimensions(rows, ColCount());
  if (added_.empty()) return result;

  std::vector<CoinBigIndex> rowStarts = {0};
  std::vector<int> cols;
  std::vector<double> values;
  for (auto const& terms : added_) {
    for (auto const& term : terms) {
      cols.push_back(term.col);
      values.push_back(term.value);
    }
    rowStarts.push_back(static_cast<CoinBigIndex>(cols.size()));
  }
  result.appendRows(static_cast<int>(added_.size()), rowStarts.data(), cols.data(), values.data(), ColCount());
  return result;
}

void LinearModel::Load(ClpSimplex& simplex) const {
  simplex.loadProblem(Matrix(), lower.data(), upper.data(), cost.data(), rowLower.data(), rowUpper.data());
  simplex.setOptimizationDirection(1.0);
}

namespace {

int ToCode(ClpSimplex::Status status, double lower, double upper) {
  if (status != ClpSimplex::basic && lower == upper) return static_cast<int>(BasisStatus::kFixed);
  switch (status) {
    case ClpSimplex::basic: return static_cast<int>(BasisStatus::kBasic);
    case ClpSimplex::atUpperBound: return static_cast<int>(BasisStatus::kUpper);
    case ClpSimplex::atLowerBound: return static_cast<int>(BasisStatus::kLower);
    case ClpSimplex::isFixed: return static_cast<int>(BasisStatus::kFixed);
    default: return static_cast<int>(BasisStatus::kSuperBasic);
  }
}

}  // namespace

void ReadLpSolution(ClpSimplex const& simplex, LinearModel const& model, ProblemData const& data, SolveResult& result) {
  int const cols = data.columns.Count();
  int const rows = data.rows.Count();
  auto& lp = result.lp;
  // Adding 0 turns a negative zero into a plain one.
  lp.values.resize(cols);
  lp.reducedCosts.resize(cols);
  result.basis.cols.resize(cols);
  for (int col = 0; col < cols; ++col) {
    lp.values[col] = simplex.primalColumnSolution()[col] + 0.0;
    lp.reducedCosts[col] = model.sign * simplex.dualColumnSolution()[col] + 0.0;
    result.basis.cols[col] = ToCode(simplex.getColumnStatus(col), model.lower[col], model.upper[col]);
  }
  lp.duals.resize(rows);
  result.basis.rows.resize(rows);
  for (int row = 0; row < rows; ++row) {
    lp.duals[row] = model.sign * simplex.dualRowSolution()[row] + 0.0;
    result.basis.rows[row] = ToCode(simplex.getRowStatus(row), model.rowLower[row], model.rowUpper[row]);
  }
  lp.slacks = Slacks(data, lp.values);
  result.lpObjective = ObjectiveOf(data, lp.values);
}

std::vector<double> Slacks(ProblemData const& data, std::span<double const> values) {
  std::vector<double> slacks(data.rows.Count());
  for (int row = 0; row < data.rows.Count(); ++row) slacks[row] = RowSlack(data.rows, row, values);
  return slacks;
}

double ObjectiveOf(ProblemData const& data, std::span<double const> values) {
  double objective = data.objective.constant;
  for (int col = 0; col < data.columns.Count(); ++col) objective += data.columns.objective[col] * values[col];
  return objective + 0.0;
}

}  // namespace vorqsolver
