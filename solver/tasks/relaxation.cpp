// Building the relaxation of a problem.
#include "solver/tasks/relaxation.hpp"

#include <algorithm>
#include <cmath>

#include "solver/problem/failure.hpp"
#include "solver/tasks/iis_members.hpp"

namespace vorqsolver {

namespace {

double PenaltyOf(std::vector<double> const& penalties, int index) {
  return penalties.empty() ? kInfinity : penalties[static_cast<std::size_t>(index)];
}

std::string NameOf(NameList const& names, int index, char const* prefix) {
  auto const name = names.Get(index);
  return name.empty() ? Text(prefix, index + 1) : std::string(name);
}

}  // namespace

Relaxation::Relaxation(ProblemData const& original, RelaxPenalties const& penalties, RelaxMode mode)
    : mode_(mode), colCount_(original.columns.Count()), penalties_(penalties), data_(original) {
  data_.objective = Objective();
  std::ranges::fill(data_.columns.objective, 0.0);
  // Cuts speak of the problem as it was.
  data_.userCuts = SideRows();
  int const rows = original.rows.Count();
  for (int row = 0; row < rows; ++row) RelaxRow(row);
  for (int col = 0; col < colCount_; ++col) RelaxColumn(col);
  data_.lazyConstraints.matrix.AppendEmptyCols(data_.columns.Count() - colCount_);
  data_.userCuts.matrix.AppendEmptyCols(data_.columns.Count());
}

int Relaxation::AddCol(double upper, double cost, char type, std::string const& name) {
  auto& columns = data_.columns;
  columns.lower.push_back(0.0);
  columns.upper.push_back(upper);
  columns.objective.push_back(cost);
  columns.type.push_back(type);
  columns.names.Set(columns.Count() - 1, name);
  return columns.Count() - 1;
}

int Relaxation::AddRow(SparseMatrix::View terms, double lower, double upper, std::string const& name) {
  auto& rows = data_.rows;
  std::vector<int> const cols(terms.indices.begin(), terms.indices.end());
  std::vector<double> const values(terms.values.begin(), terms.values.end());
  rows.matrix.AppendRow(cols, values);
  rows.lower.push_back(lower);
  rows.upper.push_back(upper);
  rows.names.Set(rows.Count() - 1, name);
  return rows.Count() - 1;
}

// `row` is where the side stands, and `most` what its violation can come to.
void Relaxation::AddSide(RelaxedSide side, int row, std::string const& name, double most) {
  char const* const prefix = side.isLower ? "low_" : "upp_";
  bool const isLinear = !Counts() && !Squares();
  side.slack = AddCol(most, isLinear ? side.penalty : 0.0, 'C', prefix + name);
  double const sign = side.isLower ? 1.0 : -1.0;
  data_.rows.matrix.AppendCol(std::span(&row, 1), std::span(&sign, 1));
  if (Squares()) data_.objective.quadratic.push_back({side.slack, side.slack, side.penalty});
  if (Counts()) {
    side.counter = AddCol(1.0, side.penalty, 'B', Text("any_", prefix, name));
    data_.rows.matrix.AppendEmptyCols(1);
    Indicator none;
    none.binCol = side.counter;
    none.binVal = 0;
    none.terms = {{side.slack, 1.0}};
    data_.indicators.push_back(std::move(none));
  }
  sides_.push_back(side);
}

// By how much the row can miss its side within the bounds of its columns that stay.
double Relaxation::MostViolation(int row, bool isLower) const {
  double activity = 0.0;
  auto const view = data_.rows.matrix.Row(row);
  for (std::size_t k = 0; k < view.indices.size(); ++k) {
    int const col = view.indices[k];
    // Columns behind those of the problem are violations of the row itself.
    if (col >= colCount_ || view.values[k] == 0.0) continue;
    auto const [lower, upper] = HullOf(data_.columns, col);
    bool const usesLower = (view.values[k] > 0.0) == isLower;
    bool const stays = PenaltyOf(usesLower ? penalties_.colLower : penalties_.colUpper, col) >= kInfinity;
    double const bound = usesLower ? lower : upper;
    if (!stays || std::abs(bound) >= kInfinity) return kInfinity;
    activity += view.values[k] * bound;
  }
  double const most = isLower ? data_.rows.lower[row] - activity : activity - data_.rows.upper[row];
  return std::max(most, 0.0);
}

void Relaxation::RelaxRow(int row) {
  double const lower = data_.rows.lower[row];
  double const upper = data_.rows.upper[row];
  double const low = PenaltyOf(penalties_.rowLower, row);
  double const upp = PenaltyOf(penalties_.rowUpper, row);
  bool const relaxesLower = MayRelax(low, lower);
  bool const relaxesUpper = MayRelax(upp, upper);
  if (!relaxesLower && !relaxesUpper) return;
  auto const name = NameOf(data_.rows.names, row, "R");
  double const mostLow = relaxesLower && Counts() ? MostViolation(row, true) : kInfinity;
  double const mostUpp = relaxesUpper && Counts() ? MostViolation(row, false) : kInfinity;
  int upperRow = row;
  if (lower > upper) {
    // Sides that cross cannot stand in one row.
    upperRow = AddRow(data_.rows.matrix.Row(row), -kInfinity, upper, "upper_" + name);
    data_.rows.upper[row] = kInfinity;
  }
  if (relaxesLower) AddSide({true, true, row, low, -1}, row, name, mostLow);
  if (relaxesUpper) AddSide({true, false, row, upp, -1}, upperRow, name, mostUpp);
}

// A bound that may be violated becomes a row. The bounds of a semicontinuous column say what the column is; those of a
// binary column can only go back to 0 and 1.
void Relaxation::RelaxColumn(int col) {
  char const type = data_.columns.type[col];
  if (type == 'S' || type == 'N') return;
  double const lower = data_.columns.lower[col];
  double const upper = data_.columns.upper[col];
  double const low = PenaltyOf(penalties_.colLower, col);
  double const upp = PenaltyOf(penalties_.colUpper, col);
  double const one = 1.0;
  SparseMatrix::View const term = {std::span(&col, 1), std::span(&one, 1)};
  auto const name = NameOf(data_.columns.names, col, "C");
  if (MayRelax(low, lower) && lower > WithoutLower(type, lower)) {
    data_.columns.lower[col] = WithoutLower(type, lower);
    int const row = AddRow(term, lower, kInfinity, "lower_" + name);
    AddSide({false, true, col, low, -1}, row, name, kInfinity);
  }
  if (MayRelax(upp, upper) && upper < WithoutUpper(type, upper)) {
    data_.columns.upper[col] = WithoutUpper(type, upper);
    int const row = AddRow(term, -kInfinity, upper, "upper_" + name);
    AddSide({false, false, col, upp, -1}, row, name, kInfinity);
  }
}

double Relaxation::PenaltyAt(std::vector<double> const& values) const {
  double sum = 0.0;
  for (auto const& side : sides_) {
    double const amount = std::max(values[static_cast<std::size_t>(side.slack)], 0.0);
    double const measure = Counts()    ? std::round(values[static_cast<std::size_t>(side.counter)])
                           : Squares() ? amount * amount
                                       : amount;
    sum += side.penalty * measure;
  }
  return sum;
}

void Relaxation::OptimiseWithin(ProblemData const& original, double penalty) {
  // Room for rounding: the least violation itself is known only so well.
  double const most = penalty + 1e-6 * std::max(1.0, std::abs(penalty));
  if (Squares()) {
    QuadConstraint limit;
    limit.quadratic = data_.objective.quadratic;
    limit.rhs = most;
    data_.quadConstraints.push_back(std::move(limit));
  } else {
    std::vector<int> cols;
    std::vector<double> values;
    for (auto const& side : sides_) {
      cols.push_back(Counts() ? side.counter : side.slack);
      values.push_back(side.penalty);
    }
    AddRow({cols, values}, -kInfinity, most, "least_violation");
  }
  data_.objective = original.objective;
  std::ranges::fill(data_.columns.objective, 0.0);
  std::ranges::copy(original.columns.objective, data_.columns.objective.begin());
}

}  // namespace vorqsolver
